// The Cn of free roofs in the built WindData against a second reading of Figures 6-18 and
// 6-19, kept apart from the data file the book is built from. Every value is read at its
// own angle from the sheet row where the figure's tables stand, so the test holds the
// layout as well: Figure 6-18 at rows 7, 26 ... 299, Figure 6-19 17 rows apart from 344
// (monoslope), 652 (pitched) and 960 (troughed), Figure 6-18D at B312:D315.
#include <gtest/gtest.h>

#include <map>
#include <string>

#include "BuiltWindData.h"
#include "CsvLines.h"

namespace gustline::books::testing {
namespace {

// The result row of each table of Figure 6-18 by roof, table and flow.
int Figure618Row(const std::string& roof, const std::string& table, const std::string& flow) {
  static const std::map<std::string, int> first = {
      {"monoslope A0", 7}, {"monoslope A180", 45}, {"monoslope B0", 84}, {"monoslope B180", 122},
      {"pitched A", 163},  {"pitched B", 201},     {"troughed A", 242},  {"troughed B", 280}};
  return first.at(roof + " " + table) + (flow == "obstructed" ? 19 : 0);
}

// The zones and bands of Figure 6-19 that take a table: zone 1 takes T1 in every band, zone 2
// T2, T2, T1 and zone 3 T3, T2, T1, the band 0 to a^2, then to 4 a^2, then beyond.
struct ZoneBand {
  int zone;
  int band;
};
std::vector<ZoneBand> ZoneBandsOf(const std::string& table) {
  if (table == "T1") return {{1, 0}, {1, 1}, {1, 2}, {2, 2}, {3, 2}};
  if (table == "T2") return {{2, 0}, {2, 1}, {3, 1}};
  return {{3, 0}};
}

int Figure619Row(const std::string& roof, ZoneBand where, const std::string& flow) {
  static const std::map<std::string, int> first = {
      {"monoslope", 344}, {"pitched", 652}, {"troughed", 960}};
  return first.at(roof) + 17 * (6 * (where.zone - 1) + 2 * where.band) +
         (flow == "obstructed" ? 17 : 0);
}

double Expect(const wb::Value& value, const std::string& where) {
  EXPECT_TRUE(value.IsNumber()) << where;
  return value.IsNumber() ? value.AsNumber() : 0;
}

TEST(FreeRoofTablesTest, EveryValueStandsAtItsRowAndAngle) {
  const auto checks = ReadCsvLines(GUSTLINE_TEST_DATA_DIR "/free-roof-check-values.csv");
  ASSERT_EQ(checks.size(), 416u);
  auto book = OpenBuiltWindData();
  const std::map<std::string, std::string> distanceColumn = {
      {"h", "B"}, {"2h", "C"}, {"beyond", "D"}};
  const std::map<std::string, int> caseRow = {
      {"A clear", 312}, {"A obstructed", 313}, {"B clear", 314}, {"B obstructed", 315}};
  int checked = 0;
  for (const auto& check : checks) {
    const std::string& figure = check[0];
    const std::string& roof = check[1];
    const std::string& table = check[2];
    const std::string& flow = check[3];
    const std::string& column = check[5];
    const double expected = std::stod(check[6]);
    const std::string where =
        figure + " " + roof + " " + table + " " + flow + " at " + check[4] + " " + column;
    if (roof == "free") {
      const std::string cell =
          distanceColumn.at(check[4]) + std::to_string(caseRow.at(table + " " + flow));
      EXPECT_EQ(Expect(CellAt(*book, "Sheet7", cell), where), expected) << where;
      ++checked;
      continue;
    }
    Set(*book, "Table66Angle", std::stod(check[4]));
    const std::string sheetColumn = column == "cnw" || column == "pos" ? "G" : "H";
    if (figure == "6-18") {
      const int row = Figure618Row(roof, table, flow);
      EXPECT_NEAR(Expect(CellAt(*book, "Sheet7", sheetColumn + std::to_string(row)), where),
                  expected, 1e-12)
          << where;
      ++checked;
      continue;
    }
    for (const ZoneBand zoneBand : ZoneBandsOf(table)) {
      // Troughed zone 2 beyond 4 a^2 in clear flow keeps Cn+ of its own at 30 and 45.
      double value = expected;
      if (roof == "troughed" && zoneBand.zone == 2 && zoneBand.band == 2 && flow == "clear" &&
          column == "pos" && (check[4] == "30" || check[4] == "45"))
        value = check[4] == "30" ? 1.9 : 1.8;
      const int row = Figure619Row(roof, zoneBand, flow);
      EXPECT_NEAR(Expect(CellAt(*book, "Sheet7", sheetColumn + std::to_string(row)), where), value,
                  1e-12)
          << where << ", zone " << zoneBand.zone << " band " << zoneBand.band;
      ++checked;
    }
  }
  EXPECT_EQ(checked, 236 + 3 * 180);
}

}  // namespace
}  // namespace gustline::books::testing
