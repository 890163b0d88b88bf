#include <gtest/gtest.h>

#include "ErrorNumber.h"
#include "core/workbook/model/BookRegistry.h"
#include "core/workbook/model/Workbook.h"

namespace gustline::wb {
namespace {

TEST(CellEntry, ReadsAsTyped) {
  const struct {
    const char* typed;
    Value value;
    const char* entry;
    const char* formula;
  } cases[] = {{"1e3", Value::Number(1000), "1000", "1000"},
               {"-0.5", Value::Number(-0.5), "-0.5", "-0.5"},
               {".5", Value::Number(0.5), "0.5", "0.5"},
               {" 12 ", Value::Number(12), "12", "12"},
               {"true", Value::Boolean(true), "TRUE", "TRUE"},
               {"FALSE", Value::Boolean(false), "FALSE", "FALSE"},
               {"#N/A", Value::Error(ErrorCode::NA), "#N/A", "#N/A"},
               {"Total Area", Value::Text("Total Area"), "Total Area", "\"Total Area\""},
               {"say \"hi\"", Value::Text("say \"hi\""), "say \"hi\"", "\"say \"\"hi\"\"\""},
               {"12 ft", Value::Text("12 ft"), "12 ft", "\"12 ft\""},
               {"", Value(), "", ""}};
  Workbook book;
  for (const auto& c : cases) {
    book.SetCellEntry(3, 2, "old");
    book.SetCellEntry(3, 2, c.typed);
    EXPECT_EQ(book.CellValue(3, 2), c.value) << c.typed;
    EXPECT_EQ(book.CellEntry(3, 2), c.entry) << c.typed;
    EXPECT_EQ(book.CellFormula(3, 2), c.formula) << c.typed;
    // A constant's formula text written back is the same constant.
    book.SetCellFormula(3, 2, book.CellFormula(3, 2));
    EXPECT_EQ(book.CellValue(3, 2), c.value) << c.typed;
  }
}

TEST(CellNumber, ReadsZeroForWhatIsNoNumber) {
  Workbook book;
  book.SetCellText(1, 1, "Exposure");
  book.SetCellEntry(1, 2, "#DIV/0!");
  book.SetCellEntry(1, 3, "TRUE");
  book.SetCellNumber(1, 4, 90);
  const std::pair<int, double> numbers[] = {{1, 0}, {2, 0}, {3, 1}, {4, 90}};
  for (const auto& [col, number] : numbers) EXPECT_EQ(book.CellNumber(1, col), number) << col;
  EXPECT_EQ(book.CellNumber(9, 9), 0);
  EXPECT_EQ(book.CellText(9, 9), "");
  EXPECT_EQ(ErrorNumberOf([&] { book.CellNumber(0, 1); }), errc::kBadArgument);
  EXPECT_EQ(ErrorNumberOf([&] { book.SetCellNumber(16385, 1, 1); }), errc::kBadArgument);
}

TEST(CellFormula, StoresAndPrintsFormulas) {
  Workbook book;
  book.SetCellNumber(1, 1, 3);
  book.SetCellFormula(2, 1, "A1*2");
  EXPECT_EQ(book.CellFormula(2, 1), "A1*2");
  EXPECT_EQ(book.CellEntry(2, 1), "=A1*2");
  EXPECT_EQ(book.CellNumber(2, 1), 6);
  book.SetCellEntry(3, 1, "=A2+1");
  EXPECT_EQ(book.CellNumber(3, 1), 7);
  book.SetActiveCell(4, 1);
  book.SetActiveFormula("Sum($A$1:$A$3)");
  EXPECT_EQ(book.CellNumber(4, 1), 16);
}

TEST(CellFormula, ABadFormulaLeavesTheCellAsItWas) {
  Workbook book;
  book.SetCellFormula(1, 1, "\"kept\"");
  EXPECT_EQ(ErrorNumberOf([&] { book.SetCellFormula(1, 1, "1+*"); }), errc::kFormulaSyntax);
  EXPECT_EQ(ErrorNumberOf([&] { book.SetCellEntry(1, 1, "="); }), errc::kFormulaSyntax);
  EXPECT_EQ(book.CellValue(1, 1), Value::Text("kept"));
}

TEST(CellFormula, EmptyTextClearsTheContentAndKeepsTheFormat) {
  Workbook book;
  book.SetCellFormula(1, 1, "2+2");
  book.SetNumberFormat("0.00");
  book.SetCellFormula(1, 1, "");
  EXPECT_EQ(book.CellValue(1, 1), Value());
  EXPECT_EQ(book.LastRow(), 0);
  EXPECT_EQ(book.GetCellStyle(1, 1).numberFormat, "0.00");
}

TEST(CellFormula, ReenteringAConstantChangesNothing) {
  Workbook book;
  book.SetCellNumber(1, 1, 17.428542112355654);
  book.SetCellText(1, 2, "Page \"1\"");
  const auto before = book.ChangeCount();
  for (int col = 1; col <= 3; ++col) book.SetCellFormula(1, col, book.CellFormula(1, col));
  EXPECT_EQ(book.ChangeCount(), before);
  EXPECT_EQ(book.CellNumber(1, 1), 17.428542112355654);
  EXPECT_EQ(book.CellText(1, 2), "Page \"1\"");
}

}  // namespace
}  // namespace gustline::wb
