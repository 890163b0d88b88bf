// The Geometry dialog's plain logic: the interval grid and its formulas, OK's checks and
// writes, Cancel, the order's lists, the interval questions and the viewer's boundaries.
#include <gtest/gtest.h>

#include "core/Prompt.h"
#include "core/workbook/model/NamedCells.h"
#include "core/workbook/model/Workbook.h"
#include "geometry/GeometryValues.h"
#include "geometry/OutlineBoundaries.h"

namespace gustline::geometry {
namespace {

// The cells of the project that the dialog reads and writes, and its outline sheet.
class GeometryDialogTest : public ::testing::Test {
 protected:
  void SetUp() override {
    project.SetSheetName(1, "Sheet1");
    project.AddSheet("Sheet2");
    const char* names[][2] = {
        {"Interval", "Sheet1!$B$1"},
        {"Order", "Sheet1!$B$2"},
        {"UserIntervals", "Sheet1!$B$3"},
        {"Height", "Sheet1!$B$4"},
        {"Table67Dia", "Sheet1!$B$5"},
        {"Table610Ratios", "Sheet1!$B$6"},
        {"TableSpecialProjAreas", "Sheet1!$B$7"},
        {"TableSpecialCoefficients", "Sheet1!$B$8"},
    };
    for (const auto& [name, refersTo] : names) project.SetDefinedName(name, refersTo);
    wb::WriteNamedNumber(project, "Height", 60);
    wb::WriteNamedText(project, "Table67Dia", "10,20,30,");
    wb::WriteNamedText(project, "Table610Ratios", ".10,.20");
    wb::WriteNamedText(project, "TableSpecialProjAreas", "1.00,");
    wb::WriteNamedText(project, "TableSpecialCoefficients", "1,2,,3");
    SetUpIntervalGrid(intervals);
  }

  void TypeLengths(const char* rows) { LoadIntervalGrid(intervals, rows); }

  wb::Workbook project{"WindData"};
  wb::Workbook intervals{"F1Book1"};
  wb::Workbook outline{"F1Book2"};
  ScriptedPrompt prompt;
};

TEST(UserIntervalsRows, EachEntryOnItsLineAndBack) {
  const std::pair<const char*, const char*> cases[] = {
      {"", "1.00"}, {"  ,", "1.00"}, {"1,", "1"}, {"10 20,30", "10\r\n20\r\n30"}, {".10", ".10"}};
  for (const auto& [stored, rows] : cases) EXPECT_EQ(UserIntervalsRows(stored), rows) << stored;
  EXPECT_EQ(UserIntervalsFromRows("10\r\n20\r\n\r\n30\r\n\r\n"), "10 20 30");
}

TEST_F(GeometryDialogTest, FromAndToFollowTheLengthsRowByRow) {
  TypeLengths("10 20 30");
  EXPECT_DOUBLE_EQ(intervals.CellNumber(1, 1), 0.000001);
  const double fromTo[][2] = {{0.000001, 10}, {10, 30}, {30, 60}};
  for (int row = 2; row <= 3; ++row) {
    EXPECT_DOUBLE_EQ(intervals.CellNumber(row, 1), fromTo[row - 1][0]) << row;
    EXPECT_DOUBLE_EQ(intervals.CellNumber(row, 2), fromTo[row - 1][1]) << row;
  }
  EXPECT_EQ(intervals.CellText(4, 1), "");
  EXPECT_EQ(intervals.CellText(4, 2), "");
  EXPECT_EQ(intervals.CellText(3, 2), "60.00");
  EXPECT_DOUBLE_EQ(SumOfLengths(intervals), 60);
  TypeLengths("5");  // a shorter list clears the rows below
  EXPECT_DOUBLE_EQ(SumOfLengths(intervals), 5);
  EXPECT_EQ(intervals.CellText(2, 2), "");
}

TEST_F(GeometryDialogTest, TheSumOfLengthsRunsFromOneTo2000Feet) {
  const std::pair<double, bool> cases[] = {
      {0, false}, {0.5, false}, {1, true}, {2000, true}, {2000.5, false}};
  for (const auto& [sum, passes] : cases) {
    ScriptedPrompt p;
    EXPECT_EQ(CheckSumOfLengths(p, sum), passes) << sum;
    if (passes) continue;
    ASSERT_EQ(p.messages.size(), 2U);
    EXPECT_EQ(p.messages[0].title, "     Range Error    ");
    EXPECT_EQ(p.messages[1], (Message{"Range Error", " Sum of lengths error.", PromptIcon::Stop,
                                      PromptButtons::Ok}));
  }
  intervals.SetSelection("C1:C100");
  intervals.ClearRange(3);
  EXPECT_DOUBLE_EQ(SumOfLengths(intervals), 0) << "an empty grid sums to 0 and is refused";
}

TEST(ReverseCommaList, ReversesAndRestores) {
  const std::pair<const char*, const char*> cases[] = {{"10,20,30,", "30,20,10,"},
                                                       {".10,.20", ".20,.10"},
                                                       {"1.00,", "1.00,"},
                                                       {"1,2,,3", "3,,2,1"},
                                                       {"", ""}};
  for (const auto& [list, reversed] : cases) {
    EXPECT_EQ(ReverseCommaList(list), reversed) << list;
    EXPECT_EQ(ReverseCommaList(reversed), list) << list;
  }
}

TEST_F(GeometryDialogTest, OkWritesTheModeTheOutlineAndTheUserHeight) {
  project.SetActiveSheet(2);
  project.SetSelection("A1");
  project.SetClipText("0\t0\r\n0\t60\r\n50\t60\r\n50\t0\r\n0\t0\r\n9\t9\r\n");
  project.SetActiveSheet(1);
  CopySheetCells(project, kProjectOutlineSheet, outline, 1);
  outline.SetSelection("A6:B6");
  outline.ClearRange(3);
  outline.SetCellNumber(2, 2, 600);
  TypeLengths("100,200 300");
  ApplyGeometry(project, {5, 0}, intervals, outline);
  EXPECT_EQ(wb::ReadNamedInt(project, "Interval"), 5);
  EXPECT_EQ(wb::ReadNamedText(project, "UserIntervals"), "100.00 200.00 300.00");
  EXPECT_DOUBLE_EQ(wb::ReadNamedNumber(project, "Height"), 600);
  project.SetActiveSheet(2);
  EXPECT_DOUBLE_EQ(project.CellNumber(2, 2), 600);
  EXPECT_EQ(project.LastRow(), 5) << "rows beyond the new points are emptied";
  project.SetActiveSheet(1);
  ApplyGeometry(project, {3, 0}, intervals, outline);
  EXPECT_DOUBLE_EQ(wb::ReadNamedNumber(project, "Height"), 600) << "other modes keep Height";
}

TEST_F(GeometryDialogTest, AnOrderChangeReversesTheFourListsAndChangingBackRestoresThem) {
  const char* lists[] = {"Table67Dia", "Table610Ratios", "TableSpecialProjAreas",
                         "TableSpecialCoefficients"};
  std::vector<std::string> before;
  for (const char* name : lists) before.push_back(wb::ReadNamedText(project, name));
  ApplyGeometry(project, {0, 1}, intervals, outline);
  EXPECT_EQ(wb::ReadNamedInt(project, "Order"), 1);
  for (std::size_t i = 0; i < 4; ++i)
    EXPECT_EQ(wb::ReadNamedText(project, lists[i]), ReverseCommaList(before[i])) << lists[i];
  ApplyGeometry(project, {0, 1}, intervals, outline);  // the same order touches nothing
  EXPECT_EQ(wb::ReadNamedText(project, "Table67Dia"), "30,20,10,");
  ApplyGeometry(project, {0, 0}, intervals, outline);
  for (std::size_t i = 0; i < 4; ++i)
    EXPECT_EQ(wb::ReadNamedText(project, lists[i]), before[i]) << lists[i];
}

TEST_F(GeometryDialogTest, CancelClearsFromAndToUntilOkWasOncePressed) {
  TypeLengths("10 20");
  CancelIntervalGrid(intervals, true);
  EXPECT_DOUBLE_EQ(intervals.CellNumber(2, 2), 30);
  CancelIntervalGrid(intervals, false);
  EXPECT_EQ(intervals.CellFormula(2, 1), "");
  EXPECT_EQ(intervals.CellText(2, 2), "");
  EXPECT_DOUBLE_EQ(intervals.CellNumber(1, 2), 10) << "row 1 keeps its formula";
}

TEST(HeightIntervalWarning, OnlyStepsThatReachTheHeight) {
  struct Case {
    double height;
    int interval;
    bool warns;
  };
  const Case cases[] = {{10, 3, true},    {10.5, 3, false}, {1, 1, true},  {20, 4, true},
                        {20.1, 4, false}, {3, 0, false},    {3, 5, false}, {5, 2, true}};
  for (const Case& c : cases) {
    const auto warning = HeightIntervalWarning(c.height, c.interval);
    EXPECT_EQ(warning.has_value(), c.warns) << c.height << " " << c.interval;
    if (warning)
      EXPECT_EQ(*warning,
                (Message{"Gustline", "Interval Length should be less than total structure height.",
                         PromptIcon::Information, PromptButtons::Ok}));
  }
}

TEST(ChangingIntervalQuestion, AskedForTables2_5And6OfStructures2And4WhenTheModeChanged) {
  struct Case {
    int table, structure, mode, opened;
    std::optional<IntervalListDialog> dialog;
  };
  const Case cases[] = {
      {2, 2, 5, 0, IntervalListDialog::Figure619},
      {5, 4, 1, 0, IntervalListDialog::Figure622},
      {6, 2, 0, 5, IntervalListDialog::TableSpecial},
      {2, 2, 3, 3, std::nullopt},  // the mode it opened with
      {2, 0, 5, 0, std::nullopt},  // a building
      {2, 3, 5, 0, std::nullopt},
      {1, 2, 5, 0, std::nullopt},
  };
  for (const Case& c : cases) {
    const auto q = ChangingIntervalQuestion(c.table, c.structure, c.mode, c.opened);
    ASSERT_EQ(q.has_value(), c.dialog.has_value()) << c.table << " " << c.structure;
    if (!q) continue;
    EXPECT_EQ(q->dialog, *c.dialog);
    EXPECT_EQ(q->message.title, "Gustline");
    EXPECT_EQ(q->message.buttons, PromptButtons::YesNo);
    EXPECT_EQ(q->message.icon, PromptIcon::Question);
  }
  EXPECT_EQ(ChangingIntervalQuestion(6, 4, 1, 0)->message.text,
            "Changing Interval makes previously defined AREA and PRESSURE COEFFICIENT\r\n"
            "values invalid. Do you want to update values now?");
}

TEST(GridBoundaries, ABlankRowEndsABoundaryAndNoneIsJoinedToTheNext) {
  wb::Workbook grid;
  EXPECT_EQ(UndefinedGeometry(grid)->text, "Enter X-Y coordinates.\r\nGeometry  is undefined!!!");
  grid.SetSelection("A1");
  grid.SetClipText("0\t0\n0\t60\n50\t60\n0\t0\n\n10\t10\n10\t20\n10\t10\n\n\n5\t5\n");
  EXPECT_FALSE(UndefinedGeometry(grid).has_value());
  const std::vector<Boundary> boundaries = GridBoundaries(grid);
  ASSERT_EQ(boundaries.size(), 3U);
  EXPECT_EQ(boundaries[0].size(), 4U);
  EXPECT_EQ(boundaries[1].size(), 3U);
  EXPECT_DOUBLE_EQ(boundaries[1].front().x, 10);
  EXPECT_DOUBLE_EQ(boundaries[0].back().y, 0);
  EXPECT_EQ(boundaries[2].size(), 1U);
}

}  // namespace
}  // namespace gustline::geometry
