#include <gtest/gtest.h>

#include "ErrorNumber.h"
#include "core/workbook/model/NamedCells.h"
#include "core/workbook/model/Workbook.h"

namespace gustline::wb {
namespace {

class NamedCellsTest : public ::testing::Test {
 protected:
  void SetUp() override {
    book.AddSheet("Sheet2");
    book.AddSheet("Sheet3");
    book.SetDefinedName("WindSpeed", "Sheet1!$B$2");
    book.SetDefinedName("Exposure", "Sheet1!$B$3");
    book.SetDefinedName("Company", "Sheet1!$B$4");
    book.SetDefinedName("U_Str_Force", "Sheet3!$D$40");
    book.SetDefinedName("HeightBlock", "Sheet1!$B$2:$B$5");
  }
  Workbook book{"WindData"};
};

TEST_F(NamedCellsTest, TwoSpellingsReachTheSameCell) {
  WriteNamedNumber(book, "WindSpeed", 90);
  EXPECT_EQ(ReadNamedNumber(book, "WINDSPEED"), 90);
  EXPECT_EQ(ReadNamedNumber(book, "windspeed"), 90);
  WriteNamedText(book, "company", "Gust & Co");
  EXPECT_EQ(ReadNamedText(book, "Company"), "Gust & Co");
  EXPECT_EQ(book.CellNumber(2, 2), 90);
}

TEST_F(NamedCellsTest, ReadNamedIntRoundsTiesToEven) {
  const struct {
    double stored;
    int read;
  } cases[] = {{2.5, 2},    {3.5, 4},  {-2.5, -2},       {-3.5, -4},        {2.4999, 2},
               {2.5001, 3}, {-0.4, 0}, {32767.4, 32767}, {-32768.5, -32768}};
  for (const auto& c : cases) {
    WriteNamedNumber(book, "Exposure", c.stored);
    EXPECT_EQ(ReadNamedInt(book, "Exposure"), c.read) << c.stored;
  }
  for (const double stored : {32767.5, -32769.0, 1e10}) {
    WriteNamedNumber(book, "Exposure", stored);
    EXPECT_EQ(ErrorNumberOf([&] { ReadNamedInt(book, "Exposure"); }), errc::kBadArgument) << stored;
  }
}

TEST_F(NamedCellsTest, ACellTextActsOnTheActiveSheet) {
  EXPECT_EQ(ReadNamedInt(book, "B124"), 0);
  WriteNamedInt(book, "B124", 3);
  EXPECT_EQ(book.CellValue(124, 2), Value::Number(3));
  book.SetActiveSheet(2);
  EXPECT_EQ(ReadNamedInt(book, "B124"), 0);
  EXPECT_EQ(book.ActiveSheet(), 2);
}

TEST_F(NamedCellsTest, ANameOnAnotherSheetMovesThere) {
  WriteNamedNumber(book, "U_Str_Force", 1250);
  EXPECT_EQ(book.ActiveSheet(), 3);
  EXPECT_EQ(book.CellNumber(40, 4), 1250);
  EXPECT_EQ(ErrorNumberOf([&] { ReadNamedNumber(book, "NoSuchName"); }), errc::kUnknownName);
}

TEST_F(NamedCellsTest, FindNameOfCellTakesTheFirstExactMatch) {
  book.SetDefinedName("Speed", "Sheet1!$B$2");
  EXPECT_EQ(FindNameOfCell(book, 2, 2), "WindSpeed");
  EXPECT_EQ(FindNameOfCell(book, 4, 2), "Company");
  EXPECT_EQ(FindNameOfCell(book, 5, 2), "");
  EXPECT_EQ(book.ActiveRow(), 5);
  EXPECT_EQ(book.ActiveCol(), 2);
}

}  // namespace
}  // namespace gustline::wb
