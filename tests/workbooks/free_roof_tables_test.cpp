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

// The number in a cell of Sheet7, by column letter and row.
double Sheet7Number(wb::Workbook& book, const char* column, int row) {
  std::string cell(column);
  cell += std::to_string(row);
  const wb::Value value = CellAt(book, "Sheet7", cell);
  EXPECT_TRUE(value.IsNumber()) << cell;
  return value.IsNumber() ? value.AsNumber() : 0;
}

TEST(FreeRoofTablesTest, EveryValueStandsAtItsRowAndAngle) {
  const auto checks = ReadCsvLines(GUSTLINE_TEST_DATA_DIR "/free-roof-check-values.csv");
  ASSERT_EQ(checks.size(), 416u);
  auto book = OpenBuiltWindData();
  int checked = 0;
  for (const auto& check : checks) {
    const std::string& figure = check[0];
    const std::string& roof = check[1];
    const std::string& table = check[2];
    const std::string& flow = check[3];
    const std::string& column = check[5];
    const double expected = std::stod(check[6]);
    SCOPED_TRACE(::testing::Message() << figure << " " << roof << " " << table << " " << flow
                                      << " at " << check[4] << " " << column);
    if (roof == "free") {
      static const std::map<std::string, const char*> distanceColumn = {
          {"h", "B"}, {"2h", "C"}, {"beyond", "D"}};
      // A clear, A obstructed, B clear, B obstructed from row 312
      const int row = 312 + (table == "B" ? 2 : 0) + (flow == "obstructed" ? 1 : 0);
      EXPECT_EQ(Sheet7Number(*book, distanceColumn.at(check[4]), row), expected);
      ++checked;
      continue;
    }
    Set(*book, "Table66Angle", std::stod(check[4]));
    const char* sheetColumn = column == "cnw" || column == "pos" ? "G" : "H";
    if (figure == "6-18") {
      EXPECT_NEAR(Sheet7Number(*book, sheetColumn, Figure618Row(roof, table, flow)), expected,
                  1e-12);
      ++checked;
      continue;
    }
    for (const ZoneBand zoneBand : ZoneBandsOf(table)) {
      // Troughed zone 2 beyond 4 a^2 in clear flow keeps Cn+ of its own at 30 and 45.
      double value = expected;
      if (roof == "troughed" && zoneBand.zone == 2 && zoneBand.band == 2 && flow == "clear" &&
          column == "pos" && (check[4] == "30" || check[4] == "45"))
        value = check[4] == "30" ? 1.9 : 1.8;
      EXPECT_NEAR(Sheet7Number(*book, sheetColumn, Figure619Row(roof, zoneBand, flow)), value,
                  1e-12)
          << "zone " << zoneBand.zone << " band " << zoneBand.band;
      ++checked;
    }
  }
  EXPECT_EQ(checked, 236 + 3 * 180);
}

}  // namespace
}  // namespace gustline::books::testing
