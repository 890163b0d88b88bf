// The Cp of domed roofs in the built WindData, Figure 6-7: every value of the three zone
// tables against a second reading of the figure, kept apart from the data file the book is
// built from, each at its own f/D and hD/D; then the clamps of f/D and hD/D and the last
// column at f/D of 0.5, which the grid points alone do not reach.
#include <gtest/gtest.h>

#include <string>

#include "BuiltWindData.h"
#include "CsvLines.h"

namespace gustline::books::testing {
namespace {

struct Zones {
  double a;
  double b;
  double c;
};

Zones ZonesAt(wb::Workbook& book, double f, double hD, double d) {
  Set(book, "DomeF", f);
  Set(book, "DomehD", hD);
  Set(book, "DomeD", d);
  return {Number(book, "DomeZoneA"), Number(book, "DomeZoneB"), Number(book, "DomeZoneC")};
}

TEST(DomeTablesTest, GridPointsGiveTheValuesOfTheFigure) {
  const auto checks = ReadCsvLines(GUSTLINE_TEST_DATA_DIR "/dome-check-values.csv");
  ASSERT_EQ(checks.size(), 33u);
  auto book = OpenBuiltWindData();
  for (const auto& check : checks) {
    const std::string& zone = check[0];
    const double y = std::stod(check[1]);
    const double x = std::stod(check[2]);
    Set(*book, "DomeD", 100);
    Set(*book, "DomeF", x * 100);
    Set(*book, "DomehD", y * 100);
    EXPECT_NEAR(Number(*book, "DomeZone" + zone), std::stod(check[3]), 1e-12)
        << "zone " << zone << " at hD/D " << check[1] << ", f/D " << check[2];
  }
}

TEST(DomeTablesTest, ClampsAndTheLastColumn) {
  struct Case {
    const char* what;
    double f, hD, d;
    Zones expected;
  };
  const Case cases[] = {
      // f/D 0.25, hD/D 0.5: A between the rows 0.25 and 1 and the columns 0.2 and 0.3
      {"the default dome", 20, 40, 80, {-0.7816666666666667, -1.2, -0.5}},
      // f/D 0.6 takes the last column; B and C between their rows
      {"f/D above 0.5", 60, 25, 100, {0.8, -1.35, -0.25}},
      {"f/D of 0.5", 50, 25, 100, {0.8, -1.35, -0.25}},
      // hD/D 1.2: A holds at its last row 1, B and C at 0.5
      {"hD/D above 1", 5, 120, 100, {-1.4, -0.5, -0.5}},
      // hD/D 0.75: A goes on between 0.25 and 1, B and C stop at 0.5
      {"hD/D between 0.5 and 1", 5, 75, 100, {-1.4, -0.5, -0.5}},
      {"f/D below 0.05", 1, 0, 100, {0.15, -0.25, 0}},
  };
  auto book = OpenBuiltWindData();
  for (const Case& c : cases) {
    const Zones zones = ZonesAt(*book, c.f, c.hD, c.d);
    EXPECT_NEAR(zones.a, c.expected.a, 1e-12) << c.what;
    EXPECT_NEAR(zones.b, c.expected.b, 1e-12) << c.what;
    EXPECT_NEAR(zones.c, c.expected.c, 1e-12) << c.what;
  }
}

}  // namespace
}  // namespace gustline::books::testing
