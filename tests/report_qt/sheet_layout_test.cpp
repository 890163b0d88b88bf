#include <gtest/gtest.h>

#include "SampleBooks.h"
#include "core/ProcessState.h"
#include "report/qt/SheetRenderer.h"

namespace gustline::report {
namespace {

using testing::Put;

TEST(SheetLayout, ColumnsTakeTheirWidthInCharactersOfFiveAndAQuarterPoints) {
  wb::Workbook book;
  book.SetColumnWidth(1, 1, 10);
  book.SetColumnWidth(2, 2, 0);  // hidden
  const GridLayout grid = MakeGridLayout(book.GetSheet(1), book.Styles(), 1, 4);
  const std::vector<double> expected = {0, 52.5, 52.5, 52.5 + 8.43 * 5.25, 52.5 + 2 * 8.43 * 5.25};
  ASSERT_EQ(grid.colEdges.size(), expected.size());
  for (std::size_t i = 0; i < expected.size(); ++i) EXPECT_DOUBLE_EQ(grid.colEdges[i], expected[i]);
}

TEST(SheetLayout, HiddenRowsTakeNoRoomAndLargeFontsHeightenTheirRow) {
  wb::Workbook book;
  Put(book, 1, 1, "Title", testing::Styled(14, true));
  Put(book, 3, 1, "hidden");
  book.SetRowHidden(3, true);
  const GridLayout grid = MakeGridLayout(book.GetSheet(1), book.Styles(), 4, 1);
  EXPECT_DOUBLE_EQ(grid.RowHeight(1), 18);
  EXPECT_DOUBLE_EQ(grid.RowHeight(2), 12.75);
  EXPECT_DOUBLE_EQ(grid.RowHeight(3), 0);
  EXPECT_DOUBLE_EQ(grid.RowY(4), 30.75);
}

TEST(SheetLayout, RowHeightByFontSize) {
  const struct {
    double size, height;
  } cases[] = {{8, 12.75}, {10, 12.75}, {11, 14.25}, {12, 15.75}, {14, 18}, {18, 23.25}};
  for (const auto& c : cases) EXPECT_DOUBLE_EQ(RowHeightForFont(c.size), c.height) << c.size;
}

TEST(SheetLayout, PrintExtentReachesBordersAndFillsAndHonoursThePrintArea) {
  wb::Workbook book;
  Put(book, 2, 2, "x");
  EXPECT_EQ(PrintExtent(book.GetSheet(1), book.Styles()), (wb::Area{1, 1, 2, 2}));
  book.SetActiveCell(5, 4);
  book.SetBorder(-1, -1, -1, -1, 1, -1, -1, -1, -1, -1, -1);
  EXPECT_EQ(PrintExtent(book.GetSheet(1), book.Styles()), (wb::Area{1, 1, 5, 4}));
  book.GetSheet(1).Print().printArea = "Sheet1!$B$2:$C$3";
  EXPECT_EQ(PrintExtent(book.GetSheet(1), book.Styles()), (wb::Area{2, 2, 3, 3}));
  EXPECT_EQ(PrintExtent(wb::Workbook().GetSheet(1), book.Styles()), (wb::Area{1, 1, 1, 1}));
}

TEST(SheetLayout, PrintScaleFactor) {
  const struct {
    bool fit;
    double scale;
    int wide, tall;
    QSizeF content;
    double expected;
  } cases[] = {
      {true, 100, 1, 1, {1000, 500}, 0.5},    // too wide: shrinks to the width
      {true, 100, 1, 1, {400, 1400}, 0.5},    // too tall: shrinks to the height
      {true, 100, 1, 1, {300, 300}, 1},       // fits: never enlarged
      {true, 100, 2, 1, {1000, 500}, 1},      // two pages wide take it whole
      {true, 100, 1, 1, {50000, 10}, 0.1},    // no smaller than 10 %
      {false, 75, 1, 1, {1000, 5000}, 0.75},  // the setup's own scale
  };
  for (const auto& c : cases) {
    wb::PrintSetup setup;
    setup.fitToPages = c.fit;
    setup.scale = c.scale;
    setup.pagesWide = c.wide;
    setup.pagesTall = c.tall;
    EXPECT_DOUBLE_EQ(PrintScaleFactor(setup, c.content, {500, 700}), c.expected)
        << c.content.width() << " x " << c.content.height();
  }
}

TEST(SheetLayout, PageBreaks) {
  const std::vector<double> even = {0, 100, 200, 300, 400, 500};
  EXPECT_EQ(PageBreaks(even, 1, 5, 250), (std::vector<int>{1, 3, 5}));
  EXPECT_EQ(PageBreaks(even, 2, 5, 200), (std::vector<int>{2, 4}));
  EXPECT_EQ(PageBreaks(even, 1, 5, 1000), (std::vector<int>{1}));
  const std::vector<double> wide = {0, 50, 450, 500};
  EXPECT_EQ(PageBreaks(wide, 1, 3, 300), (std::vector<int>{1, 2, 3}));
}

TEST(SheetLayout, HeaderAndFooterCodes) {
  const PageContext context{"Page 2", "Figure66A", 2, 5};
  const struct {
    const char* code;
    HeaderFooterText expected;
  } cases[] = {{"&A", {"", "Page 2", ""}},
               {"&LProject&CPage &P of &N&R&F", {"Project", "Page 2 of 5", "Figure66A"}},
               {"Wind && Snow", {"", "Wind & Snow", ""}},
               {"&\"Arial,Bold\"&14Design&B Loads", {"", "Design Loads", ""}},
               {"", {"", "", ""}},
               {"trailing &", {"", "trailing ", ""}}};
  for (const auto& c : cases) EXPECT_EQ(ExpandHeaderFooter(c.code, context), c.expected) << c.code;
}

TEST(SheetLayout, ReportPageSetupFitsALongSheetOnOnePage) {
  wb::Workbook book;
  book.GetSheet(1).Print() = DefaultPageSetup();
  for (int row = 1; row <= 120; ++row) Put(book, row, 1, "line");
  const SheetPrintLayout layout = LayOutSheetForPrint(book.GetSheet(1), book.Styles());
  ASSERT_EQ(layout.pages.size(), 1u);
  // 11 in less 0.75 and 0.5 of margins hold 120 rows of 12.75 pt.
  EXPECT_DOUBLE_EQ(layout.scale, (792 - 90.0) / (120 * 12.75));
  EXPECT_EQ(layout.printable, QRectF(36, 54, 576, 702));
  EXPECT_EQ(layout.pages[0].cells, (wb::Area{1, 1, 120, 1}));
}

TEST(SheetLayout, WithoutFitRowsRunOnToFurtherPagesAndCentringMovesTheOrigin) {
  wb::Workbook book;
  wb::PrintSetup& setup = book.GetSheet(1).Print();
  setup = DefaultPageSetup();
  setup.fitToPages = false;
  setup.hCenter = true;
  for (int row = 1; row <= 120; ++row) Put(book, row, 1, "line");
  const SheetPrintLayout layout = LayOutSheetForPrint(book.GetSheet(1), book.Styles());
  // 702 pt hold 55 rows of 12.75 pt.
  ASSERT_EQ(layout.pages.size(), 3u);
  EXPECT_EQ(layout.pages[0].cells, (wb::Area{1, 1, 55, 1}));
  EXPECT_EQ(layout.pages[1].cells, (wb::Area{56, 1, 110, 1}));
  EXPECT_EQ(layout.pages[2].cells, (wb::Area{111, 1, 120, 1}));
  EXPECT_DOUBLE_EQ(layout.pages[0].origin.x(), 36 + (576 - 8.43 * 5.25) / 2);
  EXPECT_DOUBLE_EQ(layout.pages[0].origin.y(), 54);
}

}  // namespace
}  // namespace gustline::report
