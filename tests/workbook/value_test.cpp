#include "core/workbook/value/Value.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string>

namespace gustline::wb {
namespace {

TEST(FormatShortest, WritesTheShortestTextThatReadsBack) {
  const struct {
    double number;
    const char* text;
  } cases[] = {{17.428542112355654, "17.428542112355654"},
               {0.5, "0.5"},
               {1, "1"},
               {-0.0, "-0"},
               {0, "0"},
               {1000000, "1000000"},
               {0.1 + 0.2, "0.30000000000000004"},
               {1e-5, "0.00001"},
               {1.5e-7, "1.5e-07"},
               {1e20, "100000000000000000000"},
               {1e21, "1e+21"},
               {-2.5e300, "-2.5e+300"}};
  for (const auto& c : cases) {
    EXPECT_EQ(FormatShortest(c.number), c.text) << c.text;
    const auto back = ReadNumber(FormatShortest(c.number));
    ASSERT_TRUE(back.has_value()) << c.text;
    EXPECT_EQ(*back, c.number) << c.text;
    EXPECT_EQ(std::signbit(*back), std::signbit(c.number)) << c.text;
  }
}

TEST(ReadNumber, AcceptsWholeNumbersOnly) {
  const struct {
    const char* text;
    std::optional<double> number;
  } cases[] = {{"1e3", 1000},
               {"-0.5", -0.5},
               {".5", 0.5},
               {" 12 ", 12},
               {"+2", 2},
               {"\t7\t", 7},
               {"", std::nullopt},
               {"  ", std::nullopt},
               {"12 ft", std::nullopt},
               {"inf", std::nullopt},
               {"nan", std::nullopt},
               {"1e999", std::nullopt},
               {"+-1", std::nullopt},
               {"1,000", std::nullopt},
               {"0x10", std::nullopt},
               {"--1", std::nullopt}};
  for (const auto& c : cases) EXPECT_EQ(ReadNumber(c.text), c.number) << '"' << c.text << '"';
}

TEST(ErrorText, RoundTripsEveryCodeWithoutRegardToCase) {
  for (const auto code : {ErrorCode::Null, ErrorCode::Div0, ErrorCode::Value, ErrorCode::Ref,
                          ErrorCode::Name, ErrorCode::Num, ErrorCode::NA}) {
    EXPECT_EQ(ErrorFromText(ErrorText(code)), code);
  }
  EXPECT_EQ(ErrorText(ErrorCode::Div0), "#DIV/0!");
  EXPECT_EQ(ErrorFromText("#n/a"), ErrorCode::NA);
  EXPECT_FALSE(ErrorFromText("#N/A ").has_value());
}

}  // namespace
}  // namespace gustline::wb
