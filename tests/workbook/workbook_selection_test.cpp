#include <gtest/gtest.h>

#include "ErrorNumber.h"
#include "core/workbook/model/Workbook.h"
#include "core/workbook/value/FacilityError.h"

namespace gustline::wb {
namespace {

class SelectionTest : public ::testing::Test {
 protected:
  void SetUp() override {
    book.AddSheet("Sheet2");
    book.AddSheet("Sheet3");
    book.AddSheet("Page 1");
    book.SetDefinedName("Table66RoofType", "Sheet1!$B$87");
    book.SetDefinedName("U_Str_Force", "=Sheet3!$D$40:$E$41");
  }
  Workbook book{"WindData"};
};

TEST_F(SelectionTest, SelectsRangesSheetQualifiedRangesAndNames) {
  const struct {
    const char* text;
    int sheet;
    const char* selection;
  } cases[] = {{"B87", 2, "$B$87"},
               {"c16:a1", 2, "$A$1:$C$16"},
               {"A1:C16384", 2, "$A$1:$C$16384"},
               {"Sheet3!A1", 3, "$A$1"},
               {"sheet3!$b$2:$c$3", 3, "$B$2:$C$3"},
               {"'Page 1'!A1:B2", 4, "$A$1:$B$2"},
               {"Table66RoofType", 1, "$B$87"},
               {"TABLE66ROOFTYPE", 1, "$B$87"},
               {"u_str_force", 3, "$D$40:$E$41"}};
  for (const auto& c : cases) {
    book.SetActiveSheet(2);
    book.SetSelection(c.text);
    EXPECT_EQ(book.ActiveSheet(), c.sheet) << c.text;
    EXPECT_EQ(book.Selection(), c.selection) << c.text;
    EXPECT_EQ(book.ActiveRow(), book.SelFirstRow()) << c.text;
    EXPECT_EQ(book.ActiveCol(), book.SelFirstCol()) << c.text;
  }
}

TEST_F(SelectionTest, RefusesUnknownNamesAndBadTexts) {
  const struct {
    const char* text;
    int error;
  } cases[] = {{"NoSuchName", errc::kUnknownName},
               {"A1:", errc::kBadReference},
               {"Nowhere!A1", errc::kBadReference},
               {"A1:B2:C3", errc::kBadReference},
               {"", errc::kBadReference}};
  for (const auto& c : cases) {
    book.SetSelection("C5");
    EXPECT_EQ(ErrorNumberOf([&] { book.SetSelection(c.text); }), c.error) << c.text;
    EXPECT_EQ(book.Selection(), "$C$5") << c.text;
  }
}

TEST_F(SelectionTest, BoundSettersKeepTheOtherBounds) {
  book.SetSelection("B15");
  book.SetSelLastRow(book.SelFirstRow() + 3 - 1);
  book.SetSelLastCol(book.SelLastCol() + 1);
  EXPECT_EQ(book.Selection(), "$B$15:$C$17");
  book.SetSelFirstRow(book.SelLastRow());
  book.SetSelFirstCol(1);
  EXPECT_EQ(book.Selection(), "$A$17:$C$17");
  // With no interval rows a builder sets the last row above the first.
  book.SetSelLastRow(16);
  EXPECT_EQ(book.SelFirstRow(), 17);
  EXPECT_EQ(book.SelLastRow(), 16);
  EXPECT_EQ(ErrorNumberOf([&] { book.SetSelFirstRow(0); }), errc::kBadArgument);
  EXPECT_EQ(ErrorNumberOf([&] { book.SetSelLastCol(257); }), errc::kBadArgument);
}

TEST_F(SelectionTest, RectanglesWholeSheetAndActiveCell) {
  book.SetSelectionRC(2, 3, 4, 5);
  EXPECT_EQ(book.Selection(), "$C$2:$E$4");
  book.SetSelectionRC(-1, -1, -1, -1);
  EXPECT_EQ(book.Selection(), "$A$1:$IV$16384");
  book.SetActiveCell(12, 3);
  EXPECT_EQ(book.Selection(), "$C$12");
  EXPECT_EQ(book.ActiveRow(), 12);
  book.SetActiveRow(1);
  book.SetActiveCol(1);
  EXPECT_EQ(book.Selection(), "$A$1");
}

TEST_F(SelectionTest, EachSheetKeepsItsOwnView) {
  book.SetSelection("Sheet3!D4");
  book.SetTopRow(20);
  book.SetMaxRow(55);
  book.SetActiveSheet(1);
  EXPECT_EQ(book.TopRow(), 1);
  EXPECT_EQ(book.MaxRow(), 16384);
  book.SetActiveSheet(3);
  EXPECT_EQ(book.Selection(), "$D$4");
  EXPECT_EQ(book.TopRow(), 20);
  EXPECT_EQ(book.MaxRow(), 55);
  EXPECT_EQ(ErrorNumberOf([&] { book.SetActiveSheet(5); }), errc::kBadSheet);
  EXPECT_EQ(ErrorNumberOf([&] { book.SetActiveSheet(0); }), errc::kBadSheet);
}

}  // namespace
}  // namespace gustline::wb
