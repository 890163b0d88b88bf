#include <gtest/gtest.h>

#include <QComboBox>
#include <QScrollBar>
#include <QWidget>

#include "SampleBooks.h"
#include "report/qt/PrintPreview.h"
#include "report/qt/ReportView.h"

namespace gustline::report {
namespace {

TEST(PreviewZoom, TypedEntryIsKeptWithinTenAndTwoHundredPercent) {
  const struct {
    const char* typed;
    const char* shown;
  } cases[] = {{"5", "10%"},       {"300", "200%"}, {"75", "75%"}, {"150%", "150%"},
               {" 62.5", "62.5%"}, {"abc", "10%"},  {"", "10%"}};
  for (const auto& c : cases)
    EXPECT_EQ(NormalizePreviewZoom(QString::fromLatin1(c.typed)), QString::fromLatin1(c.shown))
        << c.typed;
}

TEST(PreviewZoom, ScaleByTheTextOfTheZoomList) {
  const struct {
    const char* text;
    double expected;
  } cases[] = {{"Page Width", (6520.0 - 400) / 12240},
               {"Whole Page", (8120.0 - 200) / 15840},
               {"75%", 0.75},
               {"200%", 2}};
  for (const auto& c : cases)
    EXPECT_DOUBLE_EQ(PreviewScale(QString::fromLatin1(c.text), 6520, 8120), c.expected) << c.text;
}

TEST(PreviewZoom, AClickOnThePageCyclesTheZoom) {
  EXPECT_EQ(ZoomAfterClick(QStringLiteral("Whole Page")), QStringLiteral("100%"));
  EXPECT_EQ(ZoomAfterClick(QStringLiteral("Page Width")), QStringLiteral("100%"));
  EXPECT_EQ(ZoomAfterClick(QStringLiteral("100%")), QStringLiteral("Whole Page"));
  EXPECT_EQ(ZoomAfterClick(QStringLiteral("37%")), QStringLiteral("Whole Page"));
}

class PreviewTest : public ::testing::Test {
 protected:
  PreviewTest() : book_(testing::VelocityPressureBook()) {
    book_->AddSheet("Page 2");
    book_->AddSheet("Page 3");
  }
  std::unique_ptr<wb::Workbook> book_;
};

TEST_F(PreviewTest, PageButtonsWalkTheSheetsAndStopAtEitherEnd) {
  PrintPreview preview(*book_);
  preview.resize(800, 600);
  preview.Enter();
  EXPECT_FALSE(preview.PageUp());
  EXPECT_EQ(book_->ActiveSheet(), 1);
  EXPECT_TRUE(preview.PageDown());
  EXPECT_TRUE(preview.PageDown());
  EXPECT_EQ(book_->ActiveSheet(), 3);
  EXPECT_FALSE(preview.PageDown());
  EXPECT_EQ(book_->ActiveSheet(), 3);
  EXPECT_TRUE(preview.PageUp());
  EXPECT_EQ(book_->ActiveSheet(), 2);
}

TEST_F(PreviewTest, DrawingCentresEverySheetAndLeavingDropsAllCentring) {
  for (int sheet = 1; sheet <= 3; ++sheet) book_->GetSheet(sheet).Print().vCenter = true;
  PrintPreview preview(*book_);
  preview.resize(800, 600);
  preview.Enter();
  for (int sheet = 1; sheet <= 3; ++sheet) EXPECT_TRUE(book_->GetSheet(sheet).Print().hCenter);
  preview.Leave();
  for (int sheet = 1; sheet <= 3; ++sheet) {
    EXPECT_FALSE(book_->GetSheet(sheet).Print().hCenter);
    EXPECT_FALSE(book_->GetSheet(sheet).Print().vCenter);
  }
}

TEST_F(PreviewTest, PageSizeFollowsTheZoomAndScrollsOnlyWhenLarger) {
  PrintPreview preview(*book_);
  preview.resize(900, 700);
  preview.show();
  preview.Enter();
  auto* page = preview.findChild<QWidget*>(QStringLiteral("picPage"));
  auto* background = preview.findChild<QWidget*>(QStringLiteral("picBackGround"));
  auto* vertical = preview.findChild<QScrollBar*>(QStringLiteral("VScroll1"));
  ASSERT_TRUE(page && background && vertical);

  EXPECT_EQ(preview.ZoomText(), QStringLiteral("Whole Page"));
  EXPECT_NEAR(page->height(), background->height() - 200 / 15.0, 1);
  EXPECT_FALSE(vertical->isEnabled());

  preview.SetZoomText(QStringLiteral("100%"));
  EXPECT_EQ(page->size(), QSize(816, 1056));  // 8.5 by 11 in at 96 dpi
  EXPECT_TRUE(vertical->isEnabled());
  EXPECT_EQ(vertical->maximum(), 1056 - background->height());
  EXPECT_EQ(vertical->singleStep(), 7);  // 100 twips
}

TEST(ReportViewTest, CellsUnderThePointerFollowZoomAndWidths) {
  auto book = testing::VelocityPressureBook();
  ReportView view(*book);
  view.resize(600, 400);
  view.SetZoom(200);
  // At 200 % one point is 8/3 px: column A is 3 × 5.25 pt = 42 px, B 30 characters.
  const struct {
    QPoint point;
    int row, col;
  } cases[] = {{{1, 1}, 1, 1},
               {{41, 47}, 1, 1},
               {{43, 1}, 1, 2},
               {{43, 49}, 2, 2},
               {{42 + 420 + 1, 49 + 34}, 3, 3}};
  for (const auto& c : cases) {
    const auto cell = view.CellAt(c.point);
    ASSERT_TRUE(cell);
    EXPECT_EQ(*cell, (wb::CellAddress{c.row, c.col})) << c.point.x() << "," << c.point.y();
  }
}

}  // namespace
}  // namespace gustline::report
