#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "BookAssembler.h"
#include "core/workbook/NamedCells.h"
#include "core/workbook/Value.h"
#include "core/workbook/Workbook.h"

namespace gustline::templates::testing {

// The built WindData and one report book opened beside it, the report's links bound as the
// report generator binds them: every formula entered again.
class LinkedReport {
 public:
  // A built template, bin/workbooks/templates/CONTAINER/NAME.gwb.
  static LinkedReport Template(const std::string& container, const std::string& name) {
    LinkedReport linked;
    linked.report_ = std::make_unique<wb::Workbook>(name);
    linked.report_->ReadWorkbook(std::string(GUSTLINE_WORKBOOK_DIR) + "/templates/" + container +
                                 "/" + name + ".gwb");
    linked.Rebind();
    return linked;
  }

  // A book of this folder's books/, assembled from its sources while WindData is open.
  static LinkedReport Assembled(const std::string& bookName) {
    LinkedReport linked;
    linked.report_ = std::make_unique<wb::Workbook>(bookName);
    books::BookAssembler assembler(*linked.report_);
    assembler.ReadBook(std::string(GUSTLINE_TEMPLATE_TEST_DIR) + "/books/" + bookName + ".book");
    return linked;
  }

  // A project input by defined name or by its cell on Sheet1 ("B148").
  void Set(std::string_view projectName, double value) {
    project_->SetActiveSheet(1);
    wb::WriteNamedNumber(*project_, projectName, value);
  }

  // A report value by defined name or by "Page 2!I12".
  wb::Value Value(std::string_view where) {
    report_->Recalc();
    const auto found = report_->ResolveReference(where);
    report_->SetActiveSheet(found->first);
    return report_->CellValue(found->second.firstRow, found->second.firstCol);
  }
  double Number(std::string_view where) {
    const wb::Value value = Value(where);
    return value.IsNumber() ? value.AsNumber() : -1e300;
  }
  std::string Text(int sheet, int row, int col) {
    report_->Recalc();
    report_->SetActiveSheet(sheet);
    return report_->CellText(row, col);
  }

  // The first row of a sheet whose cell in the column holds the text, 0 if none.
  int RowOf(int sheet, int col, std::string_view text) {
    report_->Recalc();
    report_->SetActiveSheet(sheet);
    for (int row = 1; row <= report_->LastRow(); ++row)
      if (report_->CellText(row, col) == text) return row;
    return 0;
  }

  wb::Workbook& Report() { return *report_; }

 private:
  LinkedReport() : project_(std::make_unique<wb::Workbook>("WindData")) {
    project_->ReadWorkbook(std::string(GUSTLINE_WORKBOOK_DIR) + "/WindData.gwb");
  }

  void Rebind() {
    for (int sheet = 1; sheet <= report_->SheetCount(); ++sheet) {
      report_->SetActiveSheet(sheet);
      std::vector<std::pair<int, int>> formulas;
      report_->GetSheet(sheet).ForEachCell([&](int row, int col, const wb::Cell& cell) {
        if (cell.IsFormula()) formulas.emplace_back(row, col);
      });
      for (const auto& [row, col] : formulas)
        report_->SetCellFormula(row, col, report_->CellFormula(row, col));
    }
  }

  std::unique_ptr<wb::Workbook> project_;
  std::unique_ptr<wb::Workbook> report_;
};

}  // namespace gustline::templates::testing
