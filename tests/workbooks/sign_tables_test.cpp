// The Cf of solid signs (Figure 6-20) and of open signs (Table 6-9) in the built WindData:
// every value of the tables against a second reading of the figures, each at its own grid
// point, then the interpolations between the points, the start of the second band from 0,
// the return corner and the factors of Notes 2 and 4.
#include <gtest/gtest.h>

#include <cmath>
#include <map>
#include <string>
#include <vector>

#include "BuiltWindData.h"
#include "CsvLines.h"

namespace gustline::books::testing {
namespace {

constexpr int kFirstBandRow = 470;    // 18 rows a band
constexpr int kFirstRegionRow = 706;  // 23 rows a region

double SheetNumber(wb::Workbook& book, const std::string& cell) {
  return CellAt(book, "Sheet3", cell).AsNumber();
}

double Band(wb::Workbook& book, int band) {
  return SheetNumber(book, "G" + std::to_string(kFirstBandRow + 18 * band));
}

double Region(wb::Workbook& book, int region) {
  return SheetNumber(book, "G" + std::to_string(kFirstRegionRow + 23 * region));
}

// A sign without the factors of Notes 2 and 4 and without a return corner.
void SetPlainSign(wb::Workbook& book, double aspect, double clearance) {
  Set(book, "AspectRatio", aspect);
  Set(book, "ClearanceRatio", clearance);
  Set(book, "RatioOfSolidAreaToGrossArea", 1);
  Set(book, "HorzDimOfReturnCorner", 0);
}

TEST(SignTablesTest, GridPointsGiveTheValuesOfTheFigures) {
  const auto checks = ReadCsvLines(GUSTLINE_TEST_DATA_DIR "/sign-check-values.csv");
  ASSERT_EQ(checks.size(), 197u);
  auto book = OpenBuiltWindData();
  // Each table's keys in the order of the file: bands, regions and rows of Table 6-9.
  std::map<std::string, std::vector<std::string>> keys;
  for (const auto& check : checks) {
    const std::string& table = check[0];
    std::vector<std::string>& ofTable = keys[table];
    if (ofTable.empty() || ofTable.back() != check[1]) ofTable.push_back(check[1]);
    const int index = static_cast<int>(ofTable.size()) - 1;
    const double axis = std::stod(check[2]);
    const double expected = std::stod(check[3]);
    double value = 0;
    if (table == "AB") {
      SetPlainSign(*book, std::stod(check[1]), axis);
      value = Band(*book, index);
    } else if (table == "C") {
      SetPlainSign(*book, axis, 0.5);
      value = Region(*book, index);
    } else if (table == "Return") {
      Set(*book, "DepthRatio", axis);
      value = Number(*book, "Fig620ReturnFactor");
    } else {
      const char column = static_cast<char>('A' + static_cast<int>(axis));
      value = SheetNumber(*book, column + std::to_string(442 + index));
    }
    EXPECT_NEAR(value, expected, 1e-12) << table << " " << check[1] << " at " << check[2];
  }
}

TEST(SignTablesTest, InterpolationsAndFactors) {
  struct Case {
    const char* what;
    double aspect, clearance, epsilon, returnCorner, depth;
    bool caseC;
    int index;  // band or region
    double expected;
  };
  const double note2At09 = 0.9683772233983162;
  const double risingAt100 = (100.0 - 30) / (45 - 30) * (1.75 - 1.7) + 1.7;
  const Case cases[] = {
      {"the second band starts from 0", 0.075, 1, 1, 0, 0, false, 1, 0.85},
      {"just above the first head", 0.051, 1, 1, 0, 0, false, 1, 1.7 * 0.001 / 0.05},
      {"the first band at its head", 0.05, 1, 0.9, 0, 0, false, 0, 1.8 * note2At09},
      {"the first band above its head", 0.051, 1, 1, 0, 0, false, 0, 0},
      // s/h first between 0.9 and 0.7 in each band, then B/s between the bands
      {"clearance, then aspect", 3, 0.8, 1, 0, 0, false, 6, 1.5375},
      {"epsilon 0.7", 3, 0.9, 0.7, 0, 0, false, 6, 1.475 * (1 - std::pow(0.3, 1.5))},
      {"B/s 45 in the band up to 45", 45, 0.5, 1, 0, 0, false, 11, 1.75},
      // the rows that rise with B/s go on rising past 45
      {"the last band past 45", 100, 0.5, 1, 0, 0, false, 12,
       risingAt100 + (1.75 - risingAt100) * 55 / 955},
      {"the stored defaults", 4, 0.9, 0.9, 2.5, 2.5, false, 6, 1.4041469739275585},
      {"Case C between columns", 2.5, 0.5, 1, 0, 0, true, 2, 0.575},
      {"Note 4 at s/h 0.81", 4, 0.81, 1, 0, 0, true, 0, 2.9 * 0.99},
      {"no return corner below B/s 5", 4, 0.5, 1, 2, 2, true, 0, 2.9},
      {"the return corner at B/s 5", 5, 0.5, 1, 2, 2, true, 0, 3.1 * 0.6},
      {"the return corner between depths", 5, 0.5, 1, 2, 0.65, true, 0, 3.1 * 0.825},
      {"a depth but no return corner", 5, 0.5, 1, 0, 2, true, 0, 3.1},
  };
  auto book = OpenBuiltWindData();
  for (const Case& c : cases) {
    Set(*book, "AspectRatio", c.aspect);
    Set(*book, "ClearanceRatio", c.clearance);
    Set(*book, "RatioOfSolidAreaToGrossArea", c.epsilon);
    Set(*book, "HorzDimOfReturnCorner", c.returnCorner);
    Set(*book, "DepthRatio", c.depth);
    const double value = c.caseC ? Region(*book, c.index) : Band(*book, c.index);
    EXPECT_NEAR(value, c.expected, 1e-12) << c.what;
  }
}

}  // namespace
}  // namespace gustline::books::testing
