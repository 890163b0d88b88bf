#include <gtest/gtest.h>

#include <limits>
#include <string>

#include "core/workbook/value/NumberFormat.h"

namespace gustline::wb {
namespace {

struct FormatCase {
  const char* format;
  double number;
  const char* shown;
};

class FormatNumberTest : public ::testing::TestWithParam<FormatCase> {};

TEST_P(FormatNumberTest, ShowsTheNumberAsTheFormatSays) {
  const FormatCase& c = GetParam();
  EXPECT_EQ(FormatNumber(c.number, c.format), c.shown) << c.format << " of " << c.number;
}

// "General" fits the number into 11 characters of a default column.
INSTANTIATE_TEST_SUITE_P(
    General, FormatNumberTest,
    ::testing::Values(FormatCase{"General", 17.428542112355654, "17.42854211"},
                      FormatCase{"General", 1.0 / 3, "0.333333333"},
                      FormatCase{"General", -1.0 / 3, "-0.33333333"}, FormatCase{"General", 0, "0"},
                      FormatCase{"General", -0.0, "0"}, FormatCase{"General", 90, "90"},
                      FormatCase{"General", -2.5, "-2.5"}, FormatCase{"General", 0.1 + 0.2, "0.3"},
                      FormatCase{"General", 12345678901, "12345678901"},
                      FormatCase{"General", -12345678901, "-1.2346E+10"},
                      FormatCase{"General", 123456789012, "1.23457E+11"},
                      FormatCase{"General", 99999999999.7, "1E+11"},
                      FormatCase{"General", 1e12, "1E+12"}, FormatCase{"General", 1e100, "1E+100"},
                      FormatCase{"General", 0.00001, "0.00001"},
                      FormatCase{"General", 0.0000123456789, "0.000012346"},
                      FormatCase{"General", 0.000001, "1E-06"},
                      FormatCase{"General", 1.5e-7, "1.5E-07"}, FormatCase{"", 2.5, "2.5"},
                      FormatCase{"general", 2.5, "2.5"}));

INSTANTIATE_TEST_SUITE_P(
    Fixed, FormatNumberTest,
    ::testing::Values(FormatCase{"0", 2.5, "3"}, FormatCase{"0", -2.5, "-3"},
                      FormatCase{"0", 0.4, "0"}, FormatCase{"0", -0.4, "0"},
                      FormatCase{"0.0", 17.46, "17.5"}, FormatCase{"0.00", 2.675, "2.68"},
                      FormatCase{"0.00", 1.005, "1.01"}, FormatCase{"0.00", -1.005, "-1.01"},
                      FormatCase{"0.00", 0, "0.00"}, FormatCase{"0.000", 0.0005, "0.001"},
                      FormatCase{"0.0000", 3.14159265, "3.1416"},
                      FormatCase{"0.00", 99.999, "100.00"}, FormatCase{"00.0", 7.25, "07.3"},
                      FormatCase{"0.0#", 1.5, "1.5"}, FormatCase{"0.0#", 1.256, "1.26"},
                      FormatCase{"#,###", 0, ""}, FormatCase{"#,###", 0.4, ""},
                      FormatCase{"#,###", 12, "12"}, FormatCase{"#,###", 999.5, "1,000"},
                      FormatCase{"#,###", 1234567, "1,234,567"}, FormatCase{"#,##0", 0, "0"},
                      FormatCase{"#,##0", 1234.5, "1,235"},
                      FormatCase{"#,##0.00", 1234567.891, "1,234,567.89"},
                      FormatCase{"#,##0.00", -1234.5, "-1,234.50"},
                      FormatCase{"0", 1e20, "100000000000000000000"}));

INSTANTIATE_TEST_SUITE_P(PercentAndScientific, FormatNumberTest,
                         ::testing::Values(FormatCase{"0%", 0.125, "13%"},
                                           FormatCase{"0.00%", 0.07, "7.00%"},
                                           FormatCase{"0.00%", 0, "0.00%"},
                                           FormatCase{"0.00E+00", 12345, "1.23E+04"},
                                           FormatCase{"0.00E+00", 0.00012345, "1.23E-04"},
                                           FormatCase{"0.00E+00", 0, "0.00E+00"},
                                           FormatCase{"0.00E+00", 999900, "1.00E+06"},
                                           FormatCase{"0.00E+00", -12345, "-1.23E+04"},
                                           FormatCase{"0.0E-0", 12345, "1.2E4"},
                                           FormatCase{"0.00E+00", 1e-120, "1.00E-120"}));

INSTANTIATE_TEST_SUITE_P(
    LiteralsAndSections, FormatNumberTest,
    ::testing::Values(FormatCase{"0.00 \"psf\"", 12.345, "12.35 psf"},
                      FormatCase{"0.00 \"psf\"", -12.345, "-12.35 psf"},
                      FormatCase{"\\$0.00", 5, "$5.00"}, FormatCase{"0\\ \\f\\t", 30, "30 ft"},
                      FormatCase{"\"q = \"0.0", 22.04, "q = 22.0"},
                      FormatCase{"0.00;(0.00);\"zero\"", 1.5, "1.50"},
                      FormatCase{"0.00;(0.00);\"zero\"", -1.5, "(1.50)"},
                      FormatCase{"0.00;(0.00);\"zero\"", 0, "zero"}, FormatCase{"0.00;;", 0, ""},
                      FormatCase{"#,##0;[Red]-#,##0", -1234, "-1,234"},
                      FormatCase{"0.0;0.0", -2, "2.0"}, FormatCase{"\"a;b\" 0", 3, "a;b 3"}));

// Serial 46349.5 is noon of 23 November 2026, a Monday.
INSTANTIATE_TEST_SUITE_P(Dates, FormatNumberTest,
                         ::testing::Values(FormatCase{"mmmm d, yyyy", 46349.5, "November 23, 2026"},
                                           FormatCase{"mm/dd/yy", 46349.5, "11/23/26"},
                                           FormatCase{"d-mmm-yyyy", 46349.5, "23-Nov-2026"},
                                           FormatCase{"dddd", 46349.5, "Monday"},
                                           FormatCase{"h:mm AM/PM", 46349.75, "6:00 PM"},
                                           FormatCase{"hh:mm:ss", 46349.25, "06:00:00"},
                                           FormatCase{"m/d/yyyy", 60, "2/29/1900"},
                                           FormatCase{"m/d/yyyy", 2958465.5, "12/31/9999"},
                                           FormatCase{"[Red]General", 7, "7"}));

// Past 31 December 9999, or before day 0, a date is no date: the cell fills with marks.
TEST(FormatNumber, DatesOutsideTheCalendarShowOverflowMarks) {
  const double serials[] = {2958466, 2958465.999999999, 1e15, -1e15, 1e300, -1};
  for (const char* format : {"m/d/yyyy", "mmmm d, yyyy", "h:mm AM/PM", "\"day \"d"}) {
    for (const double serial : serials)
      EXPECT_EQ(FormatNumber(serial, format), kOverflowMarks) << format << " of " << serial;
  }
}

TEST(FormatNumber, ShowsANumberThatIsNoneAsAnError) {
  EXPECT_EQ(FormatNumber(std::numeric_limits<double>::infinity(), "0.00"), "#NUM!");
  EXPECT_EQ(FormatNumber(std::numeric_limits<double>::quiet_NaN(), "General"), "#NUM!");
}

TEST(DisplayText, ShowsEveryKindOfValue) {
  EXPECT_EQ(DisplayText(Value::Number(2.675), "0.00"), "2.68");
  EXPECT_EQ(DisplayText(Value::Text("Exposure C"), "0.00"), "Exposure C");
  EXPECT_EQ(DisplayText(Value::Text("12"), "0.00"), "12");
  EXPECT_EQ(DisplayText(Value::Boolean(true), "General"), "TRUE");
  EXPECT_EQ(DisplayText(Value::Boolean(false), "0.00"), "FALSE");
  EXPECT_EQ(DisplayText(Value::Error(ErrorCode::Div0), "0.00"), "#DIV/0!");
  EXPECT_EQ(DisplayText(Value::Error(ErrorCode::NA), "General"), "#N/A");
  EXPECT_EQ(DisplayText(Value(), "0.00"), "");
}

}  // namespace
}  // namespace gustline::wb
