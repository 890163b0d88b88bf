#include <gtest/gtest.h>

#include <string>

#include "core/workbook/value/FacilityError.h"
#include "geometry/HeightList.h"

namespace gustline::geometry {
namespace {

struct HeightCase {
  double height;
  int interval;
  const char* userIntervals;
  int rows;
  const char* ascendingText;  // BuildHeightText with Order 1
};

class HeightListCases : public testing::TestWithParam<HeightCase> {};

TEST_P(HeightListCases, CountAndTextAgree) {
  const HeightCase& c = GetParam();
  EXPECT_EQ(CountHeightRows(c.height, c.interval, c.userIntervals), c.rows);
  EXPECT_EQ(BuildHeightText(c.height, c.interval, 1, c.userIntervals), c.ascendingText);
}

INSTANTIATE_TEST_SUITE_P(Ladder, HeightListCases,
                         testing::Values(HeightCase{15, 0, "", 1, "0\t15\r\n"},
                                         HeightCase{16, 0, "", 2, "0\t15\r\n15.01\t16\r\n"},
                                         HeightCase{0.2, 0, "", 1, "0\t1\r\n"},
                                         HeightCase{22, 7, "", 3,
                                                    "0\t15\r\n15.01\t20\r\n20.01\t22\r\n"},
                                         HeightCase{16, 5, "  ", 2, "0\t15\r\n15.01\t16\r\n"}));

INSTANTIATE_TEST_SUITE_P(
    EqualSteps, HeightListCases,
    testing::Values(
        HeightCase{64, 3, "", 6,
                   "0\t10\r\n10.01\t20\r\n20.01\t30\r\n30.01\t40\r\n40.01\t50\r\n50.01\t64\r\n"},
        HeightCase{66, 3, "", 7,
                   "0\t10\r\n10.01\t20\r\n20.01\t30\r\n30.01\t40\r\n40.01\t50\r\n50.01\t60\r\n"
                   "60.01\t66\r\n"},
        HeightCase{2.5, 1, "", 2, "0\t1\r\n1.01\t2.5\r\n"},
        // Only the list clamps the step to the height: one line, yet no rows counted.
        HeightCase{4, 3, "", 0, "0\t4\r\n"}, HeightCase{7, 3, "", 1, "0\t7\r\n"},
        HeightCase{30, 4, "", 1, "0\t30\r\n"}));

INSTANTIATE_TEST_SUITE_P(
    UserLengths, HeightListCases,
    testing::Values(HeightCase{100, 5, "10,20,30", 3, "0\t10\r\n10.01\t30\r\n30.01\t60\r\n"},
                    HeightCase{5, 5, ".10; .2:\t1,,", 3, "0\t0.1\r\n0.11\t0.3\r\n0.31\t1.3\r\n"},
                    HeightCase{60, 5, "1,", 1, "0\t1\r\n"}));

TEST(HeightList, DescendingPutsTheTopRowFirst) {
  EXPECT_EQ(BuildHeightText(60, 0, 0, ""),
            "50.01\t60\r\n40.01\t50\r\n30.01\t40\r\n25.01\t30\r\n20.01\t25\r\n15.01\t20\r\n"
            "0\t15\r\n");
  EXPECT_EQ(CountHeightRows(60, 0, ""), 7);
  EXPECT_EQ(BuildHeightText(60, 0, 2, ""), "") << "other orders print nothing";
}

TEST(HeightList, IntervalTableIsAscendingInSinglePrecision) {
  const auto table = BuildIntervalTable(100, 5, "10,20,30");
  ASSERT_EQ(table.size(), 3u);
  EXPECT_EQ(table[1].low, 10.01f);
  EXPECT_EQ(table[2].high, 60.0f);
  EXPECT_EQ(BuildIntervalTable(4, 3, "").size(), 1u);
}

TEST(HeightList, HeightsBeyondTheLadderOrSixteenBitsRaise) {
  EXPECT_EQ(CountHeightRows(2000, 0, ""), 52);
  EXPECT_THROW(CountHeightRows(2000.5, 0, ""), wb::FacilityError);
  EXPECT_THROW(BuildHeightText(2000.5, 0, 0, ""), wb::FacilityError);
  EXPECT_THROW(BuildIntervalTable(1e9, 1, ""), wb::FacilityError);
}

}  // namespace
}  // namespace gustline::geometry
