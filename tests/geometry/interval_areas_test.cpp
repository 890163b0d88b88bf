#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include "core/Prompt.h"
#include "core/workbook/model/NamedCells.h"
#include "core/workbook/model/Workbook.h"
#include "geometry/HeightList.h"
#include "geometry/IntervalAreas.h"
#include "geometry/Nudge.h"

namespace gustline::geometry {
namespace {

using geometry::BuildIntervalTable;

// The cut lines sit up to 0.001 ft above their elevations: that much of a slab's height,
// times the outline's width, is the spread a nudge explains.
constexpr double kNudge = 0.001;

struct Outline {
  std::vector<double> x, y;
};

// The nominal area of a rectangle of the given width from y = 0 to `top` between the cuts
// of an interval: the lower cut lies 0.01 below the interval's low end.
double Nominal(double width, double top, const geometry::HeightInterval& interval) {
  const double high = std::min<double>(interval.high, top);
  const double low = std::max<double>(interval.low - 0.01, 0);
  return high > low ? width * (high - low) : 0;
}

// Rectangles from y = 0: the default outline by each ladder, a slender one by user intervals and
// one above the structure height, which stops at that height.
TEST(IntervalAreas, RectangleGivesItsWidthTimesEachIntervalHeight) {
  const struct {
    double width, top, height;
    int interval;
    const char* user;
  } cases[] = {{50, 60, 60, 0, ""},
               {50, 60, 60, 1, ""},
               {50, 60, 60, 3, ""},
               {50, 60, 60, 4, ""},
               {10, 100, 100, 5, "15,15,15,15,15,15,10"},
               {10, 70, 20, 0, ""}};
  for (const auto& c : cases) {
    ScriptedPrompt prompt;
    CutRandom random(7);
    const auto table = BuildIntervalTable(c.height, c.interval, c.user);
    const auto areas = OutlineIntervalAreas({0, c.width, c.width, 0, 0}, {0, 0, c.top, c.top, 0},
                                            c.height, table, prompt, random);
    ASSERT_EQ(areas.size(), table.size());
    for (std::size_t i = 0; i < areas.size(); ++i)
      EXPECT_NEAR(areas[i], Nominal(c.width, c.height, table[i]), c.width * kNudge + 1e-3)
          << "interval " << c.interval << " row " << i;
    EXPECT_EQ(prompt.messages.empty(), c.top <= c.height);
  }
}

TEST(IntervalAreas, OpeningsInsideAndAcrossACutAreSubtracted) {
  // A 20 by 30 outline with a 4 by 2 opening inside the first interval (0 to 15) and a
  // 6 by 4 opening across the cut at 20.
  const Outline outline = {{0, 20, 20, 0, 0, 5, 9, 9, 5, 5, 10, 16, 16, 10, 10},
                           {0, 0, 30, 30, 0, 5, 5, 7, 7, 5, 18, 18, 22, 22, 18}};
  ScriptedPrompt prompt;
  CutRandom random(3);
  const auto table = BuildIntervalTable(30, 0, "");
  const auto areas = OutlineIntervalAreas(outline.x, outline.y, 30, table, prompt, random);
  ASSERT_EQ(areas.size(), 4u);
  EXPECT_NEAR(areas[0], 20 * 15 - 8, 20 * kNudge + 1e-3);
  EXPECT_NEAR(areas[1], 20 * 5 - 6 * 2, 20 * kNudge + 1e-3);
  EXPECT_NEAR(areas[2], 20 * 5 - 6 * 2, 20 * kNudge + 1e-3);
  EXPECT_NEAR(areas[3], 20 * 5, 20 * kNudge + 1e-3);
  EXPECT_TRUE(prompt.messages.empty());
}

TEST(IntervalAreas, BoundaryWhollyInsideAnIntervalIsNegative) {
  ScriptedPrompt prompt;
  CutRandom random(5);
  const auto table = BuildIntervalTable(60, 0, "");
  const auto areas =
      OutlineIntervalAreas({0, 10, 10, 0, 0}, {2, 2, 12, 12, 2}, 60, table, prompt, random);
  EXPECT_NEAR(areas[0], -100, 1e-3);
  EXPECT_EQ(areas[1], 0);
  // Only the area written last is tested: index 0 with the descending order.
  ScriptedPrompt descending, ascending;
  IntervalAreasText(areas, 0, descending);
  IntervalAreasText(areas, 1, ascending);
  ASSERT_EQ(descending.messages.size(), 1u);
  EXPECT_EQ(descending.messages[0].title, "Warning");
  EXPECT_TRUE(ascending.messages.empty());
}

TEST(IntervalAreas, ResultTextRunsInTheOrderOfTheRows) {
  ScriptedPrompt prompt;
  EXPECT_EQ(IntervalAreasText({750.049f, 250, -1.5f}, 1, prompt), "750.05 250.00 -1.50 ");
  EXPECT_EQ(IntervalAreasText({750.049f, 250, 0}, 0, prompt), "0.00 250.00 750.05 ");
  EXPECT_EQ(IntervalAreasText({1, 2}, 2, prompt), "");
  ASSERT_EQ(prompt.messages.size(), 1u);
  EXPECT_EQ(prompt.messages[0].text,
            "Calculated Area is negative. Make sure height\r\ninterval is less than structure "
            "height or\r\ncheck for unproperly defined geometry.\r\n");
}

struct RefusalCase {
  const char* name;
  Outline outline;
  double height;
  std::vector<std::string> titles;  // of the boxes shown, in order
  std::string lastText;
};

class IntervalAreaChecks : public testing::TestWithParam<RefusalCase> {};

TEST_P(IntervalAreaChecks, WarnAndGoOnOrSetAllToZero) {
  const RefusalCase& c = GetParam();
  ScriptedPrompt prompt;
  CutRandom random(1);
  const auto table = BuildIntervalTable(c.height, 0, "");
  const auto areas =
      OutlineIntervalAreas(c.outline.x, c.outline.y, c.height, table, prompt, random);
  std::vector<std::string> titles;
  for (const Message& message : prompt.messages) titles.push_back(message.title);
  EXPECT_EQ(titles, c.titles);
  ASSERT_FALSE(prompt.messages.empty());
  EXPECT_EQ(prompt.messages.back().text, c.lastText);
  if (c.titles.back() != "Warning") {
    EXPECT_TRUE(std::all_of(areas.begin(), areas.end(), [](float a) { return a == 0; }));
  }
}

INSTANTIATE_TEST_SUITE_P(
    Outlines, IntervalAreaChecks,
    testing::Values(
        RefusalCase{"ThreePoints",
                    {{0, 10, 0}, {0, 0, 10}},
                    60,
                    {"Warning"},
                    "At least four (4) X-Y coordinates pairs are\r\nrequired to define a "
                    "structure geometry.\r\n\r\nInterval areas will be set to 0.0 sq. ft."},
        RefusalCase{"ColumnsOfDifferentLength",
                    {{0, 10, 10, 0, 0}, {0, 0, 60, 60}},
                    60,
                    {"Warning"},
                    "Number of X-Y coordinates DO NOT match.\r\n\r\nInterval areas will be set "
                    "to 0.0 sq. ft."},
        RefusalCase{"AboveTheHeight",
                    {{0, 10, 10, 0, 0}, {0, 0, 70, 70, 0}},
                    60,
                    {"Warning"},
                    "Geometry max Y-coordinated exceeds structure height.\r\nProjected area above "
                    "structure height will be ignored.\r\n\r\nStructure Height   = "
                    "60.00\r\nMax Y-Coordinate = 70.00"},
        RefusalCase{"BelowGround",
                    {{0, 10, 10, 0, 0}, {-5, -5, 60, 60, -5}},
                    60,
                    {"Warning"},
                    "Geometry with Y-coordinate less than 0.0\r\nProjected area below 0.0 "
                    "elevation will be ignored.\r\n\r\n"},
        RefusalCase{"TooLow",
                    {{0, 10, 10, 0, 0}, {0, 0, 0.5, 0.5, 0}},
                    60,
                    {"Warning", "Error"},
                    "Maximun Y-coordinate must be greater than 1.00 ft.\r\nMax Y-Coordinate = "
                    "0.50\r\n\r\n"},
        RefusalCase{"NotClosed",
                    {{0, 10, 10, 0}, {0, 0, 60, 60}},
                    60,
                    {"Geometry error"},
                    "Broken boundaries are not allowed.\r\nLine path must be continuous & vbCrLf "
                    "& vbCrLfInterval areas will be set to 0.0 sq. ft."}),
    [](const testing::TestParamInfo<RefusalCase>& info) { return info.param.name; });

TEST(IntervalAreas, ClosingPointEqualToSevenDigits) {
  ScriptedPrompt prompt;
  CutRandom random(2);
  const auto table = BuildIntervalTable(30, 0, "");
  const auto areas =
      OutlineIntervalAreas({10, 0, 0, 10, 10.000001}, {0, 0, 30, 30, 0}, 30, table, prompt, random);
  EXPECT_TRUE(prompt.messages.empty());
  EXPECT_NEAR(areas[0], 150, 10 * kNudge + 1e-3);
}

TEST(TotalArea, LargestBoundaryLessTheOthers) {
  ScriptedPrompt prompt;
  EXPECT_FLOAT_EQ(GetTotalArea({0, 0, 50, 50, 0, 10, 20, 20, 10, 10, 7},
                               {0, 60, 60, 0, 0, 10, 10, 20, 20, 10, 7}, prompt),
                  3000 - 100);
  EXPECT_TRUE(prompt.messages.empty());
  EXPECT_EQ(GetTotalArea({0, 0, 50}, {0, 60, 60}, prompt), 0);
  EXPECT_EQ(GetTotalArea({0, 0, 50, 50}, {0, 60, 60, 0}, prompt), 0);
  ASSERT_EQ(prompt.messages.size(), 2u);
  EXPECT_EQ(prompt.messages[0],
            (Message{"Geometry Error", "Not enough coordinates to start calculations.",
                     PromptIcon::Stop}));
  EXPECT_EQ(prompt.messages[1].text, "Boundaries are incomplete.");
}

// A project book with the height inputs and the outline on its second sheet.
class ProjectAreas : public testing::Test {
 protected:
  void SetUp() override {
    book_.AddSheet("Sheet2");
    book_.SetDefinedName("Height", "Sheet1!$B$24");
    book_.SetDefinedName("Interval", "Sheet1!$B$33");
    book_.SetDefinedName("Order", "Sheet1!$B$34");
    book_.SetDefinedName("UserIntervals", "Sheet1!$B$35");
    wb::WriteNamedNumber(book_, "Height", 60);
    wb::WriteNamedNumber(book_, "Interval", 3);
    wb::WriteNamedNumber(book_, "Order", 0);
    wb::WriteNamedText(book_, "UserIntervals", "1,");
    book_.SetActiveSheet(2);
    // Rows of text and blanks between the points are skipped.
    book_.SetCellText(1, 1, "X");
    const double x[] = {0, 0, 50, 50, 0}, y[] = {0, 60, 60, 0, 0};
    for (int i = 0; i < 5; ++i) {
      book_.SetCellNumber(i + 3, 1, x[i]);
      book_.SetCellNumber(i + 3, 2, y[i]);
    }
    book_.SetActiveSheet(1);
  }

  wb::Workbook book_{"WindData"};
  ScriptedPrompt prompt_;
  CutRandom random_{4};
};

TEST_F(ProjectAreas, ReadsTheOutlineSheetAndShowsProgress) {
  std::vector<std::string> shown;
  std::string panel = "Ready";
  AreaContext context{prompt_, random_, false, [&](const std::string& text) {
                        shown.push_back(text);
                        return std::exchange(panel, text);
                      }};
  const std::string text = GetIntervalAreas(book_, context);
  std::istringstream areas(text);
  int count = 0;
  for (double area; areas >> area; ++count) EXPECT_NEAR(area, 500, 50 * kNudge + 0.005);
  EXPECT_EQ(count, 6);
  EXPECT_TRUE(prompt_.messages.empty());
  EXPECT_EQ(shown, (std::vector<std::string>{"Calculating Area...", "Ready"}));
}

TEST_F(ProjectAreas, IgnoredGeometryGivesOnePerIntervalAndNoMessages) {
  book_.SetActiveSheet(2);
  book_.SetCellNumber(4, 2, 0.5);
  book_.SetActiveSheet(1);
  AreaContext context{prompt_, random_, true, nullptr};
  EXPECT_EQ(GetIntervalAreas(book_, context), "1.00 1.00 1.00 1.00 1.00 1.00 ");
  EXPECT_TRUE(prompt_.messages.empty());
}

}  // namespace
}  // namespace gustline::geometry
