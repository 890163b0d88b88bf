#include <gtest/gtest.h>

#include <cmath>

#include "core/Prompt.h"
#include "geometry/ClosedPaths.h"
#include "geometry/PointClass.h"
#include "geometry/PointList.h"
#include "geometry/SegmentCut.h"
#include "geometry/SingleText.h"

namespace gustline::geometry {
namespace {

TEST(PointClass, RotationNarrowsToSingle) {
  PointClass point(1, 0);
  point.RotateXY(3.14159265358979 / 2);
  EXPECT_EQ(point.X, static_cast<float>(std::cos(3.14159265358979 / 2)));
  EXPECT_EQ(point.Y, 1.0f);
}

TEST(PointClass, ShowsBothCoordinates) {
  ScriptedPrompt prompt;
  PointClass(2.5f, -40).Show(prompt);
  ASSERT_EQ(prompt.messages.size(), 1u);
  EXPECT_EQ(prompt.messages[0],
            (Message{"Point Coordinates", "X : 2.5\r\nY : -40\r\n", PromptIcon::Information}));
}

TEST(SameValue, SevenSignificantDigitsDecide) {
  struct Case {
    float a, b;
    bool same;
  };
  for (const Case& c :
       {Case{10.0f, 10.000001f, true}, Case{10.0f, 10.00001f, false}, Case{0.0f, -0.0f, true},
        Case{1234567.0f, 1234567.2f, true}, Case{1234567.0f, 1234568.0f, false},
        Case{1e-20f, 0.0f, false}, Case{0.1f, 0.1000000015f, true}})
    EXPECT_EQ(SameValue(c.a, c.b), c.same) << c.a << " " << c.b;
}

TEST(MakeLineList, NoLineJoinsOneBoundaryToTheNext) {
  // A triangle closed on its first point, then a square.
  const auto lines =
      MakeLineList({0, 4, 0, 0, 10, 11, 11, 10, 10}, {0, 0, 3, 0, 10, 10, 11, 11, 10});
  ASSERT_EQ(lines.size(), 14u);
  EXPECT_TRUE(SamePoint(lines[5], PointClass(0, 0)));
  EXPECT_TRUE(SamePoint(lines[6], PointClass(10, 10)));
  EXPECT_EQ(CountBoundaries(lines), 2);
  EXPECT_TRUE(MakeLineList({0, 1}, {0}).empty());
}

TEST(ClosedPaths, AreasOfClosedAndOpenLineLists) {
  // Two unit-less squares, 4 by 4 and 2 by 2, one of them run the other way round.
  const auto squares =
      MakeLineList({0, 4, 4, 0, 0, 10, 10, 12, 12, 10}, {0, 0, 4, 4, 0, 0, 2, 2, 0, 0});
  EXPECT_TRUE(IsClosedPath(squares));
  EXPECT_FLOAT_EQ(PathArea(squares), 20);
  const auto open = MakeLineList({0, 4, 4, 0}, {0, 0, 4, 4});
  EXPECT_FALSE(IsClosedPath(open));
  EXPECT_EQ(CountBoundaries(open), 0);
  EXPECT_EQ(PathArea(open), 0);
  PointList polygon = {{0, 0}, {0, 3}, {0, 3}, {5, 3}, {5, 0}, {0, 0}};
  RemoveRepeats(polygon);
  EXPECT_EQ(polygon.size(), 5u);
  EXPECT_FLOAT_EQ(PolygonArea(polygon), 15);
}

TEST(ClosedPaths, TraceChainGrowsAtBothEnds) {
  PointList lines = {{1, 0}, {2, 0}, {5, 5}, {6, 6}, {0, 0}, {1, 0}, {2, 0}, {3, 0}};
  PointList chain;
  TraceChain(PointClass(1, 0), lines, chain);
  ASSERT_EQ(chain.size(), 6u);
  EXPECT_TRUE(SamePoint(chain.front(), PointClass(0, 0)));
  EXPECT_TRUE(SamePoint(chain.back(), PointClass(3, 0)));
  EXPECT_EQ(lines.size(), 2u);
}

TEST(IntersectSegments, EndsCountAndParallelLinesDoNot) {
  const auto crossing = IntersectSegments({-1, 5}, {11, 5}, {3, 0}, {3, 10});
  ASSERT_TRUE(crossing);
  EXPECT_FLOAT_EQ(crossing->X, 3);
  EXPECT_FLOAT_EQ(crossing->Y, 5);
  EXPECT_TRUE(IntersectSegments({-1, 0}, {11, 0}, {0, 0}, {0, 10}));
  EXPECT_FALSE(IntersectSegments({-1, 5}, {11, 5}, {3, 6}, {3, 10}));
  EXPECT_FALSE(IntersectSegments({-1, 5}, {11, 5}, {0, 6}, {10, 6}));
  const auto slanted = IntersectSegments({-1, 2}, {11, 2}, {0, 0}, {4, 8});
  ASSERT_TRUE(slanted);
  EXPECT_FLOAT_EQ(slanted->X, 1);
}

TEST(ClassifySegment, CodesAgainstASlab) {
  const PointClass p1(-1, 10), p2(21, 10), p3(-1, 20), p4(21, 20);
  struct Case {
    PointClass a, b;
    SegmentCode code;
  };
  for (const Case& c :
       {Case{{0, 21}, {5, 30}, SegmentCode::Outside}, Case{{0, 0}, {5, 9}, SegmentCode::Outside},
        Case{{0, 10}, {5, 15}, SegmentCode::Inside},
        Case{{0, 0}, {0, 30}, SegmentCode::CrossesBoth},
        Case{{0, 15}, {0, 5}, SegmentCode::LowerFromA},
        Case{{0, 5}, {0, 15}, SegmentCode::LowerToB},
        Case{{0, 15}, {0, 25}, SegmentCode::UpperFromA},
        Case{{0, 25}, {0, 15}, SegmentCode::UpperToB}}) {
    const SegmentClass result = ClassifySegment(p1, p2, p3, p4, c.a, c.b);
    EXPECT_EQ(result.code, c.code) << c.a.X << "," << c.a.Y << " " << c.b.X << "," << c.b.Y;
  }
  const SegmentClass both = ClassifySegment(p1, p2, p3, p4, {0, 0}, {0, 30});
  EXPECT_FLOAT_EQ(both.lower.Y, 10);
  EXPECT_FLOAT_EQ(both.upper.Y, 20);
}

}  // namespace
}  // namespace gustline::geometry
