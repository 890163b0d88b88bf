// The factor blocks of the built WindData, recalculated: Kzt and its two copies, internal
// pressure, units, minimum pressure and the factor of section 6.5.15.1.
#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <tuple>

#include "BuiltWindData.h"

namespace gustline::books::testing {
namespace {

class WindFactorsTest : public ::testing::Test {
 protected:
  void SetHill(double exposure, double hillType, double height, double lh, double x) {
    Set(*book_, "Exposure", exposure);
    Set(*book_, "HillType", hillType);
    Set(*book_, "HillHeight", height);
    Set(*book_, "HillLh", lh);
    Set(*book_, "HillX", x);
  }
  std::unique_ptr<wb::Workbook> book_ = OpenBuiltWindData();
};

TEST_F(WindFactorsTest, DefaultProjectHasNoTopographicEffect) {
  const std::pair<const char*, double> factors[] = {{"HLh", 0.5},    {"K1Mult", 0}, {"XLh", 0.25},
                                                    {"Lh", 400},     {"K2Mult", 0}, {"K3_Z", 1},
                                                    {"IsKztOne", 0}, {"Kzt", 1}};
  for (const auto& [name, value] : factors) EXPECT_EQ(Number(*book_, name), value) << name;
  EXPECT_EQ(wb::ReadNamedText(*book_, "HillName"), "None");
}

TEST_F(WindFactorsTest, RidgeInExposureCGivesTheWorkedKzt) {
  SetHill(2, 0, 100, 300, 100);
  const std::pair<const char*, double> factors[] = {
      {"HLh", 1.0 / 3},         {"K1Mult", 0.4823333333}, {"XLh", 1.0 / 3},
      {"K2Mult", 0.7777777778}, {"K3_Z", 0.5488116361},   {"Kzt", 1.4541602466}};
  for (const auto& [name, value] : factors) EXPECT_NEAR(Number(*book_, name), value, 1e-10) << name;
  EXPECT_EQ(wb::ReadNamedText(*book_, "HillName"), "2-D Ridge");
}

// The dome copy takes K3 at hD + f, the parapet copy at the parapet height, and both take
// 0.5 where the structure's Kzt takes 0.95: exposure B on a 3-D hill.
struct CopyCase {
  const char* what;
  double exposure, hillType, hillHeight, kzt, domeKzt, parapetKzt;
};

TEST_F(WindFactorsTest, DomeAndParapetCopiesDifferOnlyWhereStated) {
  const CopyCase cases[] = {
      {"default", 2, 4, 200, 1, 1, 1},
      {"ridge, exposure C", 2, 0, 100, 1.4541602466099306, 1.4541602466099306, 1.8706572245668105},
      {"3-D hill, exposure B", 1, 3, 100, 1.233583538794942, 1.1198853313629482,
       1.2683681616931253},
      {"3-D hill, exposure B, low hill", 1, 3, 59, 1, 1, 1},
      {"3-D hill, exposure A", 0, 3, 100, 1, 1, 1},
  };
  for (const auto& c : cases) {
    SetHill(c.exposure, c.hillType, c.hillHeight, 300, 100);
    EXPECT_NEAR(Number(*book_, "Kzt"), c.kzt, 1e-12) << c.what;
    EXPECT_NEAR(Number(*book_, "DomeKzt"), c.domeKzt, 1e-12) << c.what;
    EXPECT_NEAR(Number(*book_, "Parapetkzt"), c.parapetKzt, 1e-12) << c.what;
  }
}

TEST_F(WindFactorsTest, DomeCopyFollowsEaveHeightAndRise) {
  SetHill(2, 0, 100, 300, 100);
  Set(*book_, "DomehD", 10);
  Set(*book_, "DomeF", 20);
  const double k3 = std::exp(-3.0 * 30 / 300);
  const double expected = std::pow(1 + 1.447 / 3 * (1 - (1.0 / 3) / 1.5) * k3, 2);
  EXPECT_NEAR(Number(*book_, "DomeKzt"), expected, 1e-12);
  EXPECT_NEAR(Number(*book_, "Kzt"), 1.4541602466099306, 1e-12);
}

struct KztOneCase {
  const char* what;
  double exposure, hillType, hillHeight, lh, x;
  bool isKztOne;
  double kzt;
};

TEST_F(WindFactorsTest, TestsThatSetKztToOne) {
  const KztOneCase cases[] = {
      {"H/Lh exactly 0.2 is computed", 2, 0, 60, 300, 100, false, 1.262322809881733},
      {"H/Lh below 0.2", 2, 0, 59.9, 300, 100, true, 1},
      {"exposure B, H 59", 1, 0, 59, 100, 100, true, 1},
      {"exposure C, H 59", 2, 0, 59, 100, 100, false, -1},
      {"exposure C, H below 15", 2, 0, 14, 20, 10, true, 1},
      {"exposure D, H below 15", 3, 0, 14, 20, 10, true, 1},
      {"X beyond K2Mult times Lh", 2, 0, 100, 300, 450, false, 1},
      {"no hill", 2, 4, 100, 300, 100, false, 1},
  };
  for (const auto& c : cases) {
    SetHill(c.exposure, c.hillType, c.hillHeight, c.lh, c.x);
    EXPECT_EQ(Number(*book_, "IsKztOne") != 0, c.isKztOne) << c.what;
    if (c.kzt >= 0) {
      EXPECT_NEAR(Number(*book_, "Kzt"), c.kzt, 1e-12) << c.what;
    }
  }
}

TEST_F(WindFactorsTest, SteepHillDoublesHForLh) {
  SetHill(2, 0, 200, 300, 100);
  EXPECT_EQ(Number(*book_, "HLh"), 0.5);
  EXPECT_EQ(Number(*book_, "Lh"), 400);
  SetHill(2, 0, 150, 300, 100);
  EXPECT_EQ(Number(*book_, "HLh"), 0.5);
  EXPECT_EQ(Number(*book_, "Lh"), 300);
}

struct UnitCase {
  int pressure, force, moment;
  const char *pressureCaption, *forceCaption, *momentCaption;
  double uPressure, uForce, uMoment;
};

TEST_F(WindFactorsTest, UnitCaptionsAndMultipliers) {
  const UnitCase cases[] = {{0, 0, 0, "(psf)", "(lbs)", "(lb-ft)", 1, 1, 1},
                            {0, 0, 1, "(psf)", "(lbs)", "(kip-ft)", 1, 1, 0.001},
                            {0, 1, 0, "(psf)", "(kips)", "(lb-ft)", 1, 0.001, 1000},
                            {0, 1, 1, "(psf)", "(kips)", "(kip-ft)", 1, 0.001, 1},
                            {1, 0, 0, "(ksf)", "(lbs)", "(lb-ft)", 0.001, 1000, 1},
                            {1, 0, 1, "(ksf)", "(lbs)", "(kip-ft)", 0.001, 1000, 0.001},
                            {1, 1, 0, "(ksf)", "(kips)", "(lb-ft)", 0.001, 1, 1000},
                            {1, 1, 1, "(ksf)", "(kips)", "(kip-ft)", 0.001, 1, 1}};
  for (const auto& c : cases) {
    Set(*book_, "Pressure", c.pressure);
    Set(*book_, "Force", c.force);
    Set(*book_, "Moment", c.moment);
    const int which = 100 * c.pressure + 10 * c.force + c.moment;
    EXPECT_EQ(std::tuple(Number(*book_, "U_Pressure"), Number(*book_, "U_Force"),
                         Number(*book_, "U_Moment")),
              std::tuple(c.uPressure, c.uForce, c.uMoment))
        << which;
    EXPECT_EQ(wb::ReadNamedText(*book_, "U_Str_Pressure") +
                  wb::ReadNamedText(*book_, "U_Str_Force") +
                  wb::ReadNamedText(*book_, "U_Str_Moment"),
              std::string(c.pressureCaption) + c.forceCaption + c.momentCaption)
        << which;
  }
}

TEST_F(WindFactorsTest, MinimumPressureFollowsItsSwitch) {
  EXPECT_EQ(Number(*book_, "MinPressure"), 10);
  Set(*book_, "UseMinWindPressure", 0);
  EXPECT_EQ(Number(*book_, "MinPressure"), 0);
  Set(*book_, "Pressure", 1);
  Set(*book_, "UseMinWindPressure", 1);
  EXPECT_EQ(Number(*book_, "MinPressure"), 10);
}

TEST_F(WindFactorsTest, InternalPressureByEnclosureClass) {
  const double plus[] = {0, 0.55, 0.18, 0.18};
  for (int table64 = 0; table64 < 4; ++table64) {
    Set(*book_, "Table64", table64);
    EXPECT_EQ(Number(*book_, "GCpiPlus"), plus[table64]) << table64;
    EXPECT_EQ(Number(*book_, "GCpiMinus"), -plus[table64]) << table64;
  }
}

TEST_F(WindFactorsTest, ExposureBReductionIsOnlyACell) {
  EXPECT_EQ(Number(*book_, "GCpiFactor"), 1);
  Set(*book_, "Height", 59);
  EXPECT_EQ(Number(*book_, "GCpiFactor"), 0.85);
  EXPECT_EQ(CellAt(*book_, "Sheet3", "A413").AsText(),
            "Calculated  pressures shall be multiplied by 0.85 for buildings");
  Set(*book_, "Table64Exp", 0);
  EXPECT_EQ(Number(*book_, "GCpiFactor"), 1);
  EXPECT_EQ(CellAt(*book_, "Sheet3", "A413").AsText(), "");
}

TEST_F(WindFactorsTest, Section6515MultiplicationFactor) {
  const std::tuple<double, double, double> cases[] = {{0, 0.05, 1},  {0, 1, 1},     {1, 0.05, 1.9},
                                                      {1, 0.1, 1.9}, {1, 0.5, 1.5}, {1, 1, 1}};
  for (const auto& [use, ratio, factor] : cases) {
    Set(*book_, "Use_6_5_15_1", use);
    Set(*book_, "AfBhRatio", ratio);
    EXPECT_NEAR(Number(*book_, "Sect_6_5_15_1_MultFactor"), factor, 1e-12) << use << " " << ratio;
  }
}

}  // namespace
}  // namespace gustline::books::testing
