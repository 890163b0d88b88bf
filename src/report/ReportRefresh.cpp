#include "report/ReportRefresh.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "core/ApplicationView.h"
#include "core/FileNames.h"
#include "core/workbook/model/NamedCells.h"
#include "core/workbook/model/Workbook.h"
#include "core/workbook/value/FacilityError.h"

namespace gustline::report {
namespace {

constexpr int kNoHill = 4;
constexpr int kTopographyColumn = 4;
constexpr int kTopographySearchRows = 50;
constexpr int kTopographyRows = 10;
constexpr int kPageRows = 55;

// The rows under the "Topography" line of the active sheet, when there is one.
void HideTopography(wb::Workbook& report) {
  for (int row = 1; row <= kTopographySearchRows; ++row) {
    if (report.CellText(row, kTopographyColumn) != "Topography") continue;
    report.HideRows(row + 1, row + kTopographyRows, true);
    return;
  }
}

}  // namespace

void LoadTemplateToReport(const wb::Workbook& source, wb::Workbook& report) {
  const std::string path = TemporaryBookPath(source.BookName());
  // Writing does not change the book; the engine's signature asks for a mutable one.
  const_cast<wb::Workbook&>(source).WriteWorkbook(path, wb::FileType::Native);
  report.SetMousePointer(kHourglassPointer);
  report.ReadWorkbook(path);
}

void RefreshReportLinks(wb::Workbook& report, ApplicationView& view) {
  view.SetStatusPanel(1, "Refreshing report...");
  view.RepaintStatusBar();
  const int activeSheet = report.ActiveSheet();
  report.SetMousePointer(kHourglassPointer);
  for (int sheet = 1; sheet <= report.SheetCount(); ++sheet) {
    report.SetActiveSheet(sheet);
    // Empty cells and constants read back as they are: only formulas need the walk.
    std::vector<std::pair<int, int>> formulaCells;
    report.GetSheet(sheet).ForEachCell([&formulaCells](int row, int col, const wb::Cell& cell) {
      if (cell.IsFormula()) formulaCells.emplace_back(row, col);
    });
    for (const auto& [row, col] : formulaCells) {
      try {
        report.ReenterFormula(row, col);
      } catch (const wb::FacilityError&) {
      }
    }
  }
  report.SetActiveSheet(activeSheet);
  report.SetMousePointer(kArrowPointer);
}

void FormatReportSheets(wb::Workbook& report, wb::Workbook& project) {
  for (int sheet = 1; sheet <= report.SheetCount(); ++sheet) {
    report.SetActiveSheet(sheet);
    wb::Sheet& page = report.GetSheet(sheet);
    page.Display() =
        wb::DisplaySwitches{false, false, false, false, false, false, false, false, false};
    page.Print().printArea.clear();
    report.SetSelection("A1");
    report.SetTopRow(1);
    report.SetLeftCol(1);
    report.SetActiveCol(1);
    report.SetActiveRow(1);
    report.SetAutoRecalc(true);
    report.SetMousePointer(kArrowPointer);
    const int lastRow = report.LastRow();
    report.SetMaxRow(lastRow < kPageRows + 1 ? kPageRows : lastRow + 5);
    if (sheet == 2 && wb::ReadNamedInt(project, "HillType") == kNoHill) HideTopography(report);
  }
  report.SetActiveSheet(1);
}

void CopyPageSetup(wb::Workbook& from, wb::Workbook& to) {
  const int fromActive = from.ActiveSheet();
  const int toActive = to.ActiveSheet();
  const int sheets = std::min(from.SheetCount(), to.SheetCount());
  for (int sheet = 1; sheet <= sheets; ++sheet) {
    const wb::PrintSetup& source = from.GetSheet(sheet).Print();
    wb::PrintSetup& target = to.GetSheet(sheet).Print();
    target.bottomMargin = source.bottomMargin;
    target.topMargin = source.topMargin;
    target.leftMargin = source.leftMargin;
    target.rightMargin = source.rightMargin;
    target.rowHeading = source.rowHeading;
    target.header = source.header;
    target.footer = source.footer;
    target.hCenter = source.hCenter;
    target.vCenter = source.vCenter;
    target.gridLines = source.gridLines;
    target.noColor = source.noColor;
    target.scale = source.scale;
    target.fitToPages = source.fitToPages;
    target.pagesWide = source.pagesWide;
    target.pagesTall = source.pagesTall;
    target.landscape = source.landscape;
    target.leftToRight = source.leftToRight;
  }
  from.SetActiveSheet(fromActive);
  to.SetActiveSheet(toActive);
}

}  // namespace gustline::report
