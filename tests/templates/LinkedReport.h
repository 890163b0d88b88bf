#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "BookAssembler.h"
#include "core/workbook/model/NamedCells.h"
#include "core/workbook/model/Workbook.h"
#include "core/workbook/value/Value.h"

namespace gustline::templates::testing {

// The built WindData and a book of test blocks assembled beside it, its links bound to it.
class LinkedReport {
 public:
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

 private:
  LinkedReport() : project_(std::make_unique<wb::Workbook>("WindData")) {
    project_->ReadWorkbook(std::string(GUSTLINE_WORKBOOK_DIR) + "/WindData.gwb");
  }

  std::unique_ptr<wb::Workbook> project_;
  std::unique_ptr<wb::Workbook> report_;
};

}  // namespace gustline::templates::testing
