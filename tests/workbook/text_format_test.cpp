#include <gtest/gtest.h>

#include <sstream>
#include <string>

#include "core/workbook/io/TextFormat.h"
#include "core/workbook/model/Workbook.h"

namespace gustline::wb {
namespace {

std::string TextOf(Workbook& book) {
  std::ostringstream out;
  WriteText(book, out);
  return out.str();
}

TEST(TextFormat, WritesTheActiveSheetsDisplayTextsAtTabsAndCrLf) {
  Workbook book("ServerSS");
  book.SetCellText(1, 1, "ignored: not the active sheet");
  book.AddSheet("Page 1");
  book.SetActiveSheet(2);
  book.SetCellText(1, 1, "Height");
  book.SetCellNumber(1, 2, 60);
  book.SetCellEntry(2, 3, "TRUE");
  book.SetCellFormula(3, 2, "B1*2.5");
  book.SetCellFormula(3, 3, "1/0");
  CellStyle twoDecimals;
  twoDecimals.numberFormat = "#,##0.00";
  book.SetCellStyle(1, 2, twoDecimals);
  book.SetCellStyle(3, 2, twoDecimals);

  EXPECT_EQ(TextOf(book),
            "Height\t60.00\t\r\n"
            "\t\tTRUE\r\n"
            "\t150.00\t#DIV/0!\r\n");
}

TEST(TextFormat, AnEmptySheetGivesAnEmptyFile) {
  Workbook book("BufferSS");
  EXPECT_EQ(TextOf(book), "");
}

TEST(TextFormat, KeepsTextsAsTheyAreAndStartsFromRowAndColumnOne) {
  Workbook book("BufferSS");
  book.SetCellText(2, 2, "q = 0.00256 Kz Kzt Kd V^2 I");
  EXPECT_EQ(TextOf(book), "\t\r\n\tq = 0.00256 Kz Kzt Kd V^2 I\r\n");
}

}  // namespace
}  // namespace gustline::wb
