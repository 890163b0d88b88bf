// The rigid and flexible gust pages of the shared blocks, on the default project
// (exposure C, h 60, B = L = 100, V 90, n1 0.2, damping 0.01), step by step.
#include <gtest/gtest.h>

#include <cmath>

#include "LinkedReport.h"

namespace gustline::templates::testing {
namespace {

constexpr double kTight = 1e-12;

struct Step {
  const char* what;
  const char* cell;
  double expected;
};

void ExpectSteps(LinkedReport& page, std::initializer_list<Step> steps) {
  for (const auto& step : steps)
    EXPECT_NEAR(page.Number(step.cell), step.expected, kTight * std::abs(step.expected))
        << step.what;
}

TEST(GustPagesTest, RigidStructureByCompleteAnalysis) {
  auto page = LinkedReport::Assembled("GustRigid");
  ExpectSteps(page, {{"z", "Page 1!I10", 36},
                     {"Iz", "Page 1!I11", 0.19712054997304662},
                     {"Lz", "Page 1!I12", 508.7772885877938},
                     {"Q", "Page 1!I13", 0.8757235347421963},
                     {"G", "Gust", 0.8637780514443391}});

  // The rigid page ignores the dynamic properties.
  page.Set("Frequency", 0);
  page.Set("Damping", 0.05);
  EXPECT_NEAR(page.Number("Gust"), 0.8637780514443391, kTight);
}

TEST(GustPagesTest, FlexibleStructureByRationalAnalysis) {
  auto page = LinkedReport::Assembled("GustFlexible");
  ExpectSteps(page, {{"z", "Page 1!I11", 36},
                     {"Q", "Page 1!I14", 0.8757235347421963},
                     {"Vz", "Page 1!I18", 86.95592284223535},
                     {"N1", "Page 1!I19", 1.1701958232583456},
                     {"Rn", "Page 1!I20", 0.12079834211589556},
                     {"nh", "Page 1!I21", 0.6348043720972254},
                     {"nb", "Page 1!I22", 1.0580072868287091},
                     {"nl", "Page 1!I23", 3.5420243950352437},
                     {"Rh", "Page 1!I26", 0.6831045239302412},
                     {"Rb", "Page 1!I27", 0.5523263662660254},
                     {"RL", "Page 1!I28", 0.24250429647705216},
                     {"R", "Page 1!I29", 1.7131963492787796},
                     {"gr", "Page 1!I30", 3.7865292629917704},
                     {"G", "Gust", 1.466562187121554}});
  EXPECT_EQ(page.Text(1, 32, 8), "(Eq. 6-8)");
}

// The symbols of Table 6-2 and of the equations as the standard writes them, not spelt out.
TEST(GustPagesTest, TermsAreWrittenWithTheirSymbols) {
  auto page = LinkedReport::Assembled("GustFlexible");
  const struct {
    int row;
    int col;
    const char* text;
  } cells[] = {{8, 4, "ε̄"},
               {8, 5, "ℓ"},
               {8, 7, "b̄"},
               {8, 8, "ᾱ"},
               {8, 9, "b̂"},
               {8, 10, "α̂"},
               {13, 4, "    ℓ · (z/33) ^ε̄"},
               {18, 4, "    b̄ · [ z / 33 ]^ᾱ · V · (88/60)"},
               {29, 4, "   Sqr [ ( 1 / β ) · Rn · Rh · Rb ( 0.53 + 0.47 · Rl ) ]"}};
  for (const auto& cell : cells) EXPECT_EQ(page.Text(1, cell.row, cell.col), cell.text);
}

TEST(GustPagesTest, EquivalentHeightAndExposureConstants) {
  auto page = LinkedReport::Assembled("GustRigid");
  // Exposure C with h = 20: 0.6·h is below Zmin, so z is 15.
  page.Set("Height", 20);
  EXPECT_EQ(page.Number("Page 1!I10"), 15);
  // Exposure B keeps the four-digit exponent 0.3333 of Lz, not 1/3.
  page.Set("Exposure", 1);
  page.Set("Height", 100);
  EXPECT_NEAR(page.Number("Page 1!I12"), 320 * std::pow(60.0 / 33, 0.3333), kTight * 500);
}

TEST(GustPagesTest, ZeroFrequencyLeavesTheFlexibleFactorAnError) {
  auto page = LinkedReport::Assembled("GustFlexible");
  page.Set("Frequency", 0);
  EXPECT_EQ(page.Number("Page 1!I26"), 1) << "Rh at n = 0";
  EXPECT_TRUE(page.Value("Page 1!I30").IsError()) << "gr";
  EXPECT_TRUE(page.Value("Gust").IsError());
}

}  // namespace
}  // namespace gustline::templates::testing
