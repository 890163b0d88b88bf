#include <gtest/gtest.h>

#include "ErrorNumber.h"
#include "core/workbook/model/Workbook.h"

namespace gustline::wb {
namespace {

TEST(ClipText, WritesEveryRowFromTheSelectionsTopLeft) {
  const char* texts[] = {"0\t10\r\n10\t20\r\n20\tTop\r\n", "0\t10\n10\t20\n20\tTop"};
  for (const char* text : texts) {
    Workbook book;
    book.SetCellNumber(13, 2, 99);
    book.SetSelection("B10:C11");
    book.SetClipText(text);
    EXPECT_EQ(book.CellNumber(10, 3), 10);
    EXPECT_EQ(book.CellNumber(12, 2), 20);
    EXPECT_EQ(book.CellValue(12, 3), Value::Text("Top"));
    EXPECT_EQ(book.CellNumber(13, 2), 99) << "a trailing line break adds no row";
  }
}

TEST(ClipText, EmptyFieldsClearAndNothingWritesNothing) {
  Workbook book;
  book.SetSelection("A1");
  book.SetClipText("1\t2\t3");
  book.SetClipText("\t5");
  EXPECT_EQ(book.CellValue(1, 1), Value());
  EXPECT_EQ(book.CellNumber(1, 2), 5);
  EXPECT_EQ(book.CellNumber(1, 3), 3);
  book.SetClipText("");
  EXPECT_EQ(book.CellNumber(1, 2), 5);
  book.SetSelection("IV16384");
  book.SetClipText("1\t2\n3");
  EXPECT_EQ(book.CellNumber(16384, 256), 1);
}

TEST(ClipText, ReadsTheSelectionAsShownAndStopsAtTheLastUsedRow) {
  Workbook book;
  book.SetSelection("B2");
  book.SetClipText("0\t10\r\n\tTop\r\n");
  book.SetCellFormula(2, 4, "B2+C2");
  book.SetSelection("B2:D100");
  EXPECT_EQ(book.ClipText(), "0\t10\t10\r\n\tTop\t\r\n");
  book.SetSelection("A1:A1");
  EXPECT_EQ(book.ClipText(), "\r\n");
}

class CopyDownTest : public ::testing::Test {
 protected:
  void SetUp() override {
    book.SetCellNumber(15, 2, 0);
    book.SetCellNumber(15, 3, 10);
    book.SetCellNumber(16, 2, 10);
    book.SetCellNumber(16, 3, 20);
    book.SetCellFormula(15, 4, "B15+C15");
    book.SetSelection("D15");
    book.SetNumberFormat("0.00");
    book.SetCellText(16, 4, "below");
  }
  Workbook book;
};

TEST_F(CopyDownTest, FillsFormulasAndFormatsWithRelativeReferencesShifted) {
  book.SetSelection("D15:E16");
  book.CopyDown();
  EXPECT_EQ(book.CellFormula(16, 4), "B16+C16");
  EXPECT_EQ(book.CellNumber(16, 4), 30);
  EXPECT_EQ(book.GetCellStyle(16, 4).numberFormat, "0.00");
  EXPECT_EQ(book.CellValue(16, 5), Value());
}

TEST_F(CopyDownTest, OneRowOrALastRowAboveTheFirstDoesNothing) {
  book.SetSelection("D15");
  book.CopyDown();
  EXPECT_EQ(book.CellText(16, 4), "below");
  book.SetSelLastRow(14);
  book.CopyDown();
  book.SetClipText("");
  EXPECT_EQ(book.CellText(16, 4), "below");
  EXPECT_EQ(book.CellFormula(15, 4), "B15+C15");
}

TEST(EmptySelection, BlockOperationsDoNothing) {
  Workbook book;
  book.SetCellNumber(1, 1, 7);
  book.SetSelectionRC(1, 1, 0, 0);
  book.CopyDown();
  book.ClearRange(1);
  book.SetNumberFormat("0.00");
  book.SetBorder(1, 1, 1, 1, 1, 1, -1, -1, -1, -1, -1);
  EXPECT_EQ(book.GetBorder().outline, 0);
  book.CopySelection();
  book.SetSelection("B1");
  book.PasteSelection(PasteMode::All);
  EXPECT_EQ(book.CellNumber(1, 1), 7);
  EXPECT_EQ(book.GetCellStyle(1, 1), CellStyle{});
  EXPECT_EQ(book.LastCol(), 1);
}

TEST(ClearRange, AllOrValuesOnly) {
  Workbook book;
  for (const int what : {1, 3}) {
    book.SetSelection("A1:B2");
    book.SetClipText("1\t2\n3\t4");
    book.SetNumberFormat("#,###");
    book.SetSelection("A1:A2");
    book.ClearRange(what);
    EXPECT_EQ(book.CellValue(2, 1), Value()) << what;
    EXPECT_EQ(book.CellNumber(2, 2), 4) << what;
    EXPECT_EQ(book.GetCellStyle(2, 1).numberFormat, what == 1 ? "General" : "#,###") << what;
  }
  EXPECT_EQ(ErrorNumberOf([&] { book.ClearRange(2); }), errc::kBadArgument);
}

TEST(Borders, OutlineGoesRoundTheEdge) {
  Workbook book;
  book.SetSelection("B20:D22");
  book.SetBorder(2, -1, -1, -1, -1, -1, 0xFF0000, -1, -1, -1, -1);
  EXPECT_EQ(book.GetBorder().outline, 2);
  EXPECT_EQ(book.GetCellStyle(21, 3), CellStyle{});
  EXPECT_EQ(book.GetCellStyle(22, 4).right, (Border{2, 0xFF0000}));
  EXPECT_EQ(book.GetCellStyle(22, 4).left.style, 0);
  book.SetSelection("B20");
  const BorderInfo corner = book.GetBorder();
  EXPECT_EQ(corner.left, 2);
  EXPECT_EQ(corner.top, 2);
  EXPECT_EQ(corner.right, 0);
  EXPECT_EQ(corner.topColor, 0xFF0000u);
  book.SetSelection("B20:C20");
  EXPECT_EQ(book.GetBorder().outline, 0);
}

TEST(Borders, ClosingLineKeepsTheOtherLines) {
  Workbook book;
  book.SetSelection("B17:K17");
  book.SetBorder(-1, 1, 1, -1, -1, -1, -1, -1, -1, -1, -1);
  const BorderInfo read = book.GetBorder();
  book.SetBorder(-1, -1, -1, -1, 1, -1, -1, read.leftColor, read.rightColor, read.topColor,
                 read.bottomColor);
  for (int col = 2; col <= 11; ++col) {
    const CellStyle& style = book.GetCellStyle(17, col);
    EXPECT_EQ(style.bottom.style, 1) << col;
    EXPECT_EQ(style.left.style, 1) << col;
    EXPECT_EQ(style.top.style, 0) << col;
  }
  EXPECT_EQ(ErrorNumberOf([&] { book.SetBorder(7, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1); }),
            errc::kBadArgument);
  EXPECT_EQ(
      ErrorNumberOf([&] { book.SetBorder(-1, -1, -1, -1, -1, -1, 0x1000000, -1, -1, -1, -1); }),
      errc::kBadArgument);
}

class ClipboardTest : public ::testing::Test {
 protected:
  void SetUp() override {
    source.SetCellNumber(2, 2, 5);
    source.SetCellFormula(3, 2, "B2*2");
    CellStyle bold;
    bold.font.bold = true;
    source.SetCellStyle(3, 2, bold);
    source.SetSelection("B2:B3");
  }
  Workbook source{"Source"};
  Workbook target{"Target"};
};

TEST_F(ClipboardTest, PasteAllShiftsFormulasAndBringsStyles) {
  source.CopySelection();
  target.SetSelection("D10");
  target.PasteSelection(PasteMode::All);
  EXPECT_EQ(target.CellFormula(11, 4), "D10*2");
  EXPECT_EQ(target.CellNumber(11, 4), 10);
  EXPECT_TRUE(target.GetCellStyle(11, 4).font.bold);
  EXPECT_EQ(source.CellNumber(2, 2), 5);
}

TEST_F(ClipboardTest, PasteValuesBringsResultsOnly) {
  source.CopySelection();
  target.SetSelection("A1:A1");
  target.PasteSelection(PasteMode::Values);
  EXPECT_EQ(target.CellFormula(2, 1), "10");
  EXPECT_TRUE(target.GetCellStyle(2, 1).font.bold);
}

TEST_F(ClipboardTest, CutClearsTheSourceAtOnce) {
  source.CutSelection();
  EXPECT_EQ(source.CellValue(2, 2), Value());
  EXPECT_FALSE(source.GetCellStyle(3, 2).font.bold);
  target.SetSelection("C1");
  target.PasteSelection(PasteMode::Values);
  EXPECT_EQ(target.CellNumber(1, 3), 5);
  EXPECT_EQ(target.CellNumber(2, 3), 10);
}

}  // namespace
}  // namespace gustline::wb
