// The low-rise report Figure610 beside the built WindData: its velocity pressure chain with
// the bounds of Kh that this report takes, GCpi with Ri, the coefficients and pressures of
// Figure 6-10 through the minimum rule in the report's unit, the overhang and the parapet,
// and the cells that report creation relies on.
#include <gtest/gtest.h>

#include <cmath>
#include <string>

#include "LinkedReport.h"

namespace gustline::templates::testing {
namespace {

constexpr double kTight = 1e-12;
constexpr double kQh = 17.428542112355654;

// Page 3: the pressure rows of the ten surfaces, the overhang row, the windward parapet row.
constexpr int kFirstSurfaceRow = 18;
constexpr int kOverhangRow = 38;
constexpr int kParapetRow = 49;

std::string Cell(int sheet, const char* column, int row) {
  return "Page " + std::to_string(sheet) + "!" + column + std::to_string(row);
}

class Figure610Test : public ::testing::Test {
 protected:
  LinkedReport report_ = LinkedReport::Template("D", "Figure610");
};

TEST_F(Figure610Test, DefaultProjectVelocityPressure) {
  const struct {
    const char* name;
    double expected;
  } cases[] = {{"Constant", 0.00256},
               {"Importance", 0.87},
               {"Alpha", 9.5},
               {"Zg", 900},
               {"Kh", 1.136574472681563},
               {"Kzth", 1},
               {"k_3", 1},
               {"Kd", 0.85},
               {"qh", kQh},
               {"MinP", 10}};
  for (const auto& c : cases)
    EXPECT_NEAR(report_.Number(c.name), c.expected, kTight * c.expected) << c.name;
  EXPECT_EQ(report_.Text(1, report_.RowOf(1, 2, "Exposure Category"), 9), "C");
}

TEST_F(Figure610Test, SiteElevationLowersTheConstantInRoundedSteps) {
  const struct {
    double elevation, density, constant;
  } cases[] = {{0, 0.0765, 0.00256}, {1000, 0.0742, 0.00248}, {5000, 0.0658, 0.0022}};
  const int densityRow = report_.RowOf(1, 2, "Air Density @ MSL");
  ASSERT_GT(densityRow, 0);
  for (const auto& c : cases) {
    report_.Set("MeanSeaLevel", c.elevation);
    EXPECT_EQ(report_.Number(Cell(1, "I", densityRow)), c.density) << c.elevation;
    EXPECT_EQ(report_.Number("Constant"), c.constant) << c.elevation;
  }
}

TEST_F(Figure610Test, CategoryShowsItsLabelAndImportance) {
  const struct {
    double category;
    const char* label;
    double importance;
  } cases[] = {{0, "I", 0.87}, {1, "II", 1}, {2, "III", 1.15}, {3, "IV", 1.15}, {4, "I", 0.77}};
  const int categoryRow = report_.RowOf(1, 2, "Category");
  for (const auto& c : cases) {
    report_.Set("Category", c.category);
    EXPECT_EQ(report_.Text(1, categoryRow, 9), c.label) << c.category;
    EXPECT_EQ(report_.Number("Importance"), c.importance) << c.category;
  }
}

TEST_F(Figure610Test, DirectionalityFlagOffGivesOne) {
  report_.Set("Kd", 0);
  EXPECT_EQ(report_.Number("Kd"), 1);
  EXPECT_NEAR(report_.Number("qh"), kQh / 0.85, kTight * kQh);
}

// This main wind-force report takes Kh with the bounds of components and cladding.
TEST_F(Figure610Test, KhTakesTheCladdingLowerBounds) {
  const struct {
    double exposure, height, kh;
  } cases[] = {{1, 20, 0.7005911248},      {1, 29.9, 0.7005911248}, {0, 60, 0.6803925565},
               {2, 10, 0.848884152077903}, {1, 30, 0.7005911248},   {2, 60, 1.136574472681563}};
  for (const auto& c : cases) {
    report_.Set("Exposure", c.exposure);
    report_.Set("Height", c.height);
    EXPECT_NEAR(report_.Number("Kh"), c.kh, 1e-10) << c.exposure << " " << c.height;
  }
}

TEST_F(Figure610Test, InternalPressureWithReductionFactor) {
  const double ri = 0.5 * (1 + 1 / std::sqrt(1 + 1e6 / 2.28e6));
  const struct {
    double enclosure, computeRi, aog, vi, plus, minus;
  } cases[] = {{1, 0, 100, 1e6, 0.55, -0.55},
               {0, 1, 100, 1e6, 0, 0},
               {2, 1, 100, 1e6, 0.18, -0.18},
               {1, 1, 100, 1e6, 0.55 * ri, -0.55 * ri},
               {1, 1, 100, 0, 0.55, -0.55}};
  for (const auto& c : cases) {
    report_.Set("Table64", c.enclosure);
    report_.Set("B148", c.computeRi);
    report_.Set("Aog", c.aog);
    report_.Set("Vi", c.vi);
    EXPECT_NEAR(report_.Number("GCpiPlus"), c.plus, kTight) << c.enclosure << " " << c.vi;
    EXPECT_NEAR(report_.Number("GCpiMinus"), c.minus, kTight) << c.enclosure << " " << c.vi;
  }
  EXPECT_NEAR(ri, 0.9169, 1e-4);
  EXPECT_GT(report_.RowOf(2, 2, "Reduction Factor, Ri"), 0);

  report_.Set("Table64", 3);
  EXPECT_TRUE(report_.Value("GCpiPlus").IsError());
  EXPECT_EQ(report_.RowOf(2, 2, "Reduction Factor, Ri"), 0);
}

TEST_F(Figure610Test, SurfacePressuresThroughTheMinimumRule) {
  const struct {
    const char* surface;
    double cp, plus, minus;
  } cases[] = {{"1", 0.539, -10, 18.979682360355305},    {"2", -0.42, -16.905685848984984, 10},
               {"3", -0.465, -17.689970244040992, 10},   {"4", -0.412, -16.76625751208614, 10},
               {"5", -0.45, -17.428542112355654, 10},    {"6", -0.45, -17.428542112355654, 10},
               {"1E", 0.767, 10, 22.9533899619724},      {"2E", -0.668, -21.227964292849187, -10},
               {"3E", -0.642, -20.774822197927943, -10}, {"4E", -0.592, -19.903395092310156, -10}};
  int row = kFirstSurfaceRow;
  for (const auto& c : cases) {
    EXPECT_EQ(report_.Text(3, row, 2), c.surface);
    EXPECT_NEAR(report_.Number(Cell(3, "C", row)), c.cp, 1e-12) << c.surface;
    EXPECT_NEAR(report_.Number(Cell(3, "G", row)), c.plus, 1e-9) << c.surface;
    EXPECT_NEAR(report_.Number(Cell(3, "H", row)), c.minus, 1e-9) << c.surface;
    ++row;
  }
  // The overhang of zones 2 and 2E: qh·(GCpf - 0.68), no minimum.
  EXPECT_NEAR(report_.Number(Cell(3, "C", kOverhangRow)), kQh * (-0.42 - 0.68), 1e-9);
  EXPECT_NEAR(report_.Number(Cell(3, "D", kOverhangRow)), kQh * (-0.668 - 0.68), 1e-9);
}

// The threshold follows the pressure unit; without the minimum the raw value stays.
TEST_F(Figure610Test, MinimumFollowsTheReportUnit) {
  const std::string surface1Plus = Cell(3, "G", kFirstSurfaceRow);
  report_.Set("Pressure", 1);
  EXPECT_NEAR(report_.Number("qh"), kQh / 1000, kTight);
  EXPECT_NEAR(report_.Number(surface1Plus), -0.01, kTight);
  EXPECT_NEAR(report_.Number(Cell(3, "H", kFirstSurfaceRow)), 0.018979682360355305, 1e-12);
  report_.Set("UseMinWindPressure", 0);
  EXPECT_NEAR(report_.Number(surface1Plus), kQh / 1000 * (0.539 - 0.55), 1e-12);
}

TEST_F(Figure610Test, ParapetCombinedNetPressure) {
  report_.Set("HasParapet", 1);
  const struct {
    const char* column;
    int row;
    double expected;
  } cases[] = {{"E", kParapetRow, 1.1444475263859097},
               {"F", kParapetRow, 1},
               {"G", kParapetRow, 17.54926965932872},
               {"H", kParapetRow, 26.32390448899308},
               {"H", kParapetRow + 1, -17.54926965932872}};
  for (const auto& c : cases)
    EXPECT_NEAR(report_.Number(Cell(3, c.column, c.row)), c.expected, kTight * 30) << c.column;
  // An elevation below 15 ft is not raised to 15.
  report_.Set("ParapetElevation", 10);
  EXPECT_NEAR(report_.Number(Cell(3, "E", kParapetRow)), 2.01 * std::pow(10.0 / 900, 2 / 9.5),
              kTight);
}

// Report creation writes the system lines at B14:B15 of page 1, hides the ten rows under
// "Topography" of page 2 and clears IncludeParapet.
TEST_F(Figure610Test, CellsThatReportCreationFinds) {
  EXPECT_EQ(report_.Text(1, 14, 2), "Main Wind-Force");
  EXPECT_EQ(report_.Text(1, 15, 2), "Resisting System");
  const int topography = report_.RowOf(2, 4, "Topography");
  ASSERT_GT(topography, 0);
  EXPECT_LE(topography, 50);
  EXPECT_EQ(report_.Text(2, topography + 9, 4), "K3 @ h");
  EXPECT_EQ(report_.Text(2, topography + 10, 4), "z/Lh");
  EXPECT_EQ(report_.Text(2, topography + 11, 4), "");
  const auto parapet = report_.Report().ResolveReference("IncludeParapet");
  ASSERT_TRUE(parapet);
  EXPECT_EQ(parapet->first, 3);
  EXPECT_LE(parapet->second.firstRow, kParapetRow);
  EXPECT_GE(parapet->second.lastRow, kParapetRow + 1);
}

}  // namespace
}  // namespace gustline::templates::testing
