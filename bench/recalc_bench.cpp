#include <benchmark/benchmark.h>

#include <memory>
#include <string>

#include "core/workbook/model/Workbook.h"

namespace {

using gustline::wb::Workbook;

constexpr int kSheets = 7;
constexpr int kRows = 286;  // five formulas a row: about 10,000 formula cells
constexpr int kTableRows = 40;

std::string Row(int row) {
  return std::to_string(row);
}

// A project book with the inputs that the report links to by name.
std::unique_ptr<Workbook> MakeProject() {
  auto project = std::make_unique<Workbook>("WindData");
  project->SetCellNumber(24, 2, 30);
  project->SetCellNumber(25, 2, 1);
  project->SetDefinedName("Height", "Sheet1!$B$24");
  project->SetDefinedName("Exposure", "Sheet1!$B$25");
  return project;
}

// A report of seven pages: a height table on each, and rows of links, lookups, choices,
// a running chain and rounding, as the report templates have them.
std::unique_ptr<Workbook> MakeReport() {
  auto report = std::make_unique<Workbook>("ServerSS");
  report->SetAutoRecalc(false);
  for (int s = 2; s <= kSheets; ++s) report->AddSheet("Page " + std::to_string(s));
  for (int s = 1; s <= kSheets; ++s) {
    report->SetActiveSheet(s);
    for (int row = 1; row <= kTableRows; ++row) {
      report->SetCellNumber(row, 8, row * 5);
      report->SetCellNumber(row, 9, 0.57 + row * 0.01);
    }
    for (int row = 1; row <= kRows; ++row) {
      const std::string r = Row(row);
      report->SetCellFormula(row, 1, "[WindData]Sheet1!Height+" + r);
      report->SetCellFormula(
          row, 2, "IF(A" + r + ">15,INDEX($I$1:$I$40,MATCH(A" + r + ",$H$1:$H$40)),$I$1)");
      report->SetCellFormula(
          row, 3, "CHOOSE([WindData]Sheet1!Exposure+1,B" + r + "*0.85,B" + r + "*0.9,B" + r + ")");
      report->SetCellFormula(row, 4, row == 1 ? "C1" : "D" + Row(row - 1) + "+C" + r);
      report->SetCellFormula(row, 5, "ROUND(SQRT(ABS(D" + r + "))+MAX(B" + r + ",C" + r + "),3)");
    }
  }
  report->SetActiveSheet(1);
  report->Recalc();
  return report;
}

void BM_FullRecalc(benchmark::State& state) {
  auto project = MakeProject();
  auto report = MakeReport();
  double speed = 30;
  for (auto _ : state) {
    project->SetCellNumber(24, 2, speed);
    speed = speed == 30 ? 40 : 30;
    report->Recalc();
  }
}
BENCHMARK(BM_FullRecalc)->Unit(benchmark::kMillisecond);

// Reads every formula and writes it back, as the report build does to bind its links.
void BM_ReenterFormulas(benchmark::State& state) {
  auto project = MakeProject();
  auto report = MakeReport();
  for (auto _ : state) {
    for (int s = 1; s <= report->SheetCount(); ++s) {
      report->SetActiveSheet(s);
      const int lastRow = report->LastRow();
      const int lastCol = report->LastCol();
      for (int row = 1; row <= lastRow; ++row) {
        for (int col = 1; col <= lastCol; ++col) {
          const gustline::wb::Cell* cell = report->GetSheet(s).Find(row, col);
          if (cell == nullptr || !cell->IsFormula()) continue;
          report->SetCellFormula(row, col, report->CellFormula(row, col));
        }
      }
    }
  }
}
BENCHMARK(BM_ReenterFormulas)->Unit(benchmark::kMillisecond);

}  // namespace
