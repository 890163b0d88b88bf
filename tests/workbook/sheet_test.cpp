#include "core/workbook/model/Sheet.h"

#include <gtest/gtest.h>

#include "core/workbook/value/FacilityError.h"

namespace gustline::wb {
namespace {

TEST(Sheet, LastRowAndColumnCountContentNotFormats) {
  Sheet sheet("Sheet1", 1);
  EXPECT_EQ(sheet.LastRow(), 0);
  EXPECT_EQ(sheet.LastCol(), 0);
  sheet.At(3, 2).value = Value::Number(1);
  sheet.At(2, 5).value = Value::Text("x");
  sheet.At(40, 9).style = 3;
  EXPECT_EQ(sheet.LastRow(), 3);
  EXPECT_EQ(sheet.LastCol(), 5);
  EXPECT_EQ(sheet.StoredRows(), 40);
  EXPECT_EQ(sheet.StoredCols(), 9);
}

TEST(Sheet, EraseDropsTrailingBlankCells) {
  Sheet sheet("Sheet1", 1);
  sheet.At(2, 2).value = Value::Number(1);
  sheet.At(5, 7).value = Value::Number(2);
  sheet.Erase(5, 7);
  EXPECT_EQ(sheet.Find(5, 7), nullptr);
  EXPECT_EQ(sheet.StoredRows(), 2);
  EXPECT_EQ(sheet.StoredCols(), 2);
  sheet.Erase(9, 9);
  EXPECT_EQ(sheet.Find(0, 1), nullptr);
  EXPECT_THROW(sheet.At(16385, 1), FacilityError);
  EXPECT_THROW(sheet.At(1, 257), FacilityError);
}

TEST(Sheet, HiddenRowsStayAscendingAndUnique) {
  Sheet sheet("Sheet1", 1);
  for (const int row : {30, 10, 20, 10}) sheet.SetRowHidden(row, true);
  EXPECT_EQ(sheet.HiddenRows(), (std::vector<int>{10, 20, 30}));
  sheet.SetRowHidden(20, false);
  sheet.SetRowHidden(25, false);
  EXPECT_EQ(sheet.HiddenRows(), (std::vector<int>{10, 30}));
  EXPECT_TRUE(sheet.RowHidden(30));
  EXPECT_FALSE(sheet.RowHidden(20));
}

}  // namespace
}  // namespace gustline::wb
