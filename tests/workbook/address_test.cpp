#include <gtest/gtest.h>

#include <utility>

#include "core/workbook/address/CellAddress.h"

namespace gustline::wb {
namespace {

TEST(CellRefText, AbsoluteAndRelative) {
  const std::pair<int, const char*> columns[] = {
      {1, "A"}, {26, "Z"}, {27, "AA"}, {52, "AZ"}, {256, "IV"}};
  for (const auto& [col, letters] : columns) EXPECT_EQ(ColumnLetters(col), letters) << col;
  EXPECT_EQ(CellRefText(12, 3, true), "$C$12");
  EXPECT_EQ(CellRefText(12, 3, false), "C12");
  EXPECT_EQ(AreaText(Area{87, 2, 87, 2}), "$B$87");
  EXPECT_EQ(AreaText(Area{1, 1, 16, 3}), "$A$1:$C$16");
  EXPECT_EQ(AreaText(Area{1, 1, 16, 3}, false), "A1:C16");
}

TEST(ParseAreaText, ReadsCellsAndAreas) {
  const struct {
    const char* text;
    Area area;
  } cases[] = {{"A1", {1, 1, 1, 1}},
               {"$B$87", {87, 2, 87, 2}},
               {"b$87", {87, 2, 87, 2}},
               {"A1:C16384", {1, 1, 16384, 3}},
               {"C16:A1", {1, 1, 16, 3}},
               {"A16:C1", {1, 1, 16, 3}},
               {" IV16384 ", {16384, 256, 16384, 256}}};
  for (const auto& c : cases) {
    const auto area = ParseAreaText(c.text);
    ASSERT_TRUE(area.has_value()) << c.text;
    EXPECT_EQ(*area, c.area) << c.text;
  }
}

TEST(ParseAreaText, RefusesWhatIsNoReference) {
  for (const char* text : {"", "A0", "A16385", "IW1", "A1:", ":A1", "1A", "A", "$$A1", "A1:B",
                           "Start1", "TopRow", "A1 B2", "Sheet1!A1", "A1:B2:C3", "A99999999999"})
    EXPECT_FALSE(ParseAreaText(text).has_value()) << '"' << text << '"';
}

}  // namespace
}  // namespace gustline::wb
