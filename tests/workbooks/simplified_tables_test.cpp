// The lookups of the simplified procedure in the built WindData against a second reading of
// Figures 6-2 and 6-3, kept apart from the tables the book is built from: the zone A table
// in full, the 100 mph column of every table, the three values that stand apart from their
// neighbours, and the adjustment factor. At a table's own row and speed a lookup gives the
// table value.
#include <gtest/gtest.h>

#include <map>
#include <regex>
#include <string>
#include <vector>

#include "BuiltWindData.h"
#include "CsvLines.h"

namespace gustline::books::testing {
namespace {

TEST(SimplifiedTablesTest, LookupsGiveTheValuesOfTheFigures) {
  // Where each table's lookup leaves its result, from the book's own data file.
  std::map<std::string, std::string> resultCell;
  for (const auto& fields : ReadCsvLines(GUSTLINE_WINDDATA_SOURCE_DIR "/simplified-tables.csv"))
    resultCell[fields[0]] = fields[1];

  const auto checks = ReadCsvLines(GUSTLINE_TEST_DATA_DIR "/simplified-check-values.csv");
  ASSERT_EQ(checks.size(), 301u);
  auto book = OpenBuiltWindData();
  const std::regex zone("Zone ([1-5])");
  for (const auto& check : checks) {
    const std::string& table = check[0];
    const double key = std::stod(check[2]);
    const double expected = std::stod(check[4]);
    const std::string where = table + " at " + check[2] + ", " + check[3];
    if (check[1] == "adjustment") {
      Set(*book, "Height", key);
      Set(*book, "Exposure", check[3] == "B" ? 1 : check[3] == "C" ? 2 : 3);
      EXPECT_NEAR(Number(*book, "AdjFact"), expected, 1e-12) << where;
      continue;
    }
    ASSERT_TRUE(resultCell.contains(table)) << where;
    std::smatch area;
    if (std::regex_search(table, area, zone) && !table.starts_with("Horizontal") &&
        !table.starts_with("Vertical")) {
      Set(*book, "Zone" + area[1].str() + "Area", key);
    } else {
      Set(*book, "SimplifiedAngle", key);
    }
    Set(*book, "WindSpeed", std::stod(check[3]));
    const wb::Value result = CellAt(*book, "Sheet4", resultCell[table]);
    ASSERT_TRUE(result.IsNumber()) << where;
    EXPECT_NEAR(result.AsNumber(), expected, 1e-9) << where;
  }
}

}  // namespace
}  // namespace gustline::books::testing
