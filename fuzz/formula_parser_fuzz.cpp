// Parses arbitrary bytes as a formula, prints it, parses the print again (it must parse and
// print the same), and evaluates it. None of this may crash or hang.
#include <cstdint>
#include <cstdlib>
#include <memory>
#include <string>
#include <string_view>

#include "core/workbook/formula/Formula.h"
#include "core/workbook/model/Workbook.h"
#include "core/workbook/value/FacilityError.h"

namespace {

using namespace gustline::wb;

// A small project and report, as the templates link to each other.
struct Books {
  Books() : project("WindData"), report("Report") {
    project.AddSheet("Sheet3");
    project.SetCellNumber(24, 2, 30);
    project.SetDefinedName("Height", "Sheet1!$B$24");
    report.AddSheet("Page 1");
    for (int row = 1; row <= 8; ++row) {
      report.SetCellNumber(row, 1, row * 5);
      report.SetCellText(row, 2, row % 2 ? "Open" : "Closed");
    }
    report.SetDefinedName("Heights", "Sheet1!$A$1:$A$8");
    report.SetDefinedName("Kzt", "Sheet1!$C$3");
  }
  Workbook project;
  Workbook report;
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static Books books;
  const std::string_view text(reinterpret_cast<const char*>(data), size);
  const FormulaHost host{&books.report, 0, CellAddress{5, 4}};
  std::shared_ptr<const Formula> formula;
  try {
    formula = ParseFormula(text, host);
  } catch (const FacilityError&) {
    return 0;
  }
  const std::string printed = FormulaText(*formula, host);
  std::shared_ptr<const Formula> again;
  try {
    again = ParseFormula(printed, host);
  } catch (const FacilityError&) {
    std::abort();  // the printed form must parse
  }
  if (FormulaText(*again, host) != printed) std::abort();
  Evaluate(*formula, host);
  return 0;
}
