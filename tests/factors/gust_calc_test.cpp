#include <gtest/gtest.h>

#include <cmath>
#include <string>

#include "core/Prompt.h"
#include "core/workbook/model/NamedCells.h"
#include "core/workbook/model/Workbook.h"
#include "factors/GustCalcValues.h"
#include "report/HeadlessReport.h"

namespace gustline {
namespace {

wb::Workbook& CalculatorBook(const GustCalcValues& values) {
  static wb::Workbook book("GustCalc");
  book.ReadWorkbook(GustCalcPath(GUSTLINE_BIN_DIR));
  WriteGustCalcInputs(book, values);
  return book;
}

double Step(wb::Workbook& book, const char* name) {
  const wb::Value value = GustCalcValue(book, name);
  EXPECT_TRUE(value.IsNumber()) << name;
  return value.AsNumber();
}

// The inputs that the calculator's workbook stores: exposure A, h = 600 ft, width and depth
// 100 ft, V = 90 mph, n1 = 0.2 Hz, damping 1 per cent; the steps worked by hand from the
// commentary's equations and Table C6-6.
TEST(GustCalcTest, StepsOfTheStoredInputs) {
  wb::Workbook& book = CalculatorBook({0, "600", "100", "100", "90", "0.2", "1.00"});
  const struct {
    const char* name;
    double value;
  } steps[] = {
      {"Damping", 0.01},  // 1.00 in the field is 1 per cent
      {"StepZ", 360},
      {"StepIz", 0.3021675015262055},
      {"StepLz", 594.5204331682347},
      {"StepQ2", 0.5888323701752233},
      {"StepVz", 87.81932875675544},
      {"StepN1", 1.3539625993155902},
      {"StepRn", 0.1114224459738033},
      {"StepR2", 0.5840443591262727},
      {"Gust", 1.0563523641146069},
  };
  for (const auto& step : steps) EXPECT_DOUBLE_EQ(Step(book, step.name), step.value) << step.name;
  EXPECT_EQ(GustCalcLabel(book), " G = 1.0564");
}

TEST(GustCalcTest, NoFrequencyLeavesTheBackgroundResponseAlone) {
  wb::Workbook& book = CalculatorBook({2, "60", "100", "100", "90", "0", "1.00"});
  for (const char* zero : {"StepN1", "StepNh", "StepNb", "StepNd", "StepRn", "StepR2"})
    EXPECT_EQ(Step(book, zero), 0) << zero;
  for (const char* one : {"StepRh", "StepRb", "StepRd"}) EXPECT_EQ(Step(book, one), 1) << one;
  const double iz = Step(book, "StepIz");
  EXPECT_DOUBLE_EQ(Step(book, "Gust"),
                   (1 + 7 * iz * std::sqrt(Step(book, "StepQ2"))) / (1 + 7 * iz));
}

TEST(GustCalcTest, ATextThatIsNoNumberReadsAsZero) {
  const std::string zeroFrequency =
      GustCalcLabel(CalculatorBook({2, "60", "100", "100", "90", "0", "1"}));
  EXPECT_EQ(GustCalcLabel(CalculatorBook({2, "60", "100", "100", "90", "abc", "1"})),
            zeroFrequency);
  EXPECT_NE(zeroFrequency,
            GustCalcLabel(CalculatorBook({2, "60", "100", "100", "90", "0.2", "1"})));
  // No damping divides by zero: the label shows the error value, and the next edit a number.
  EXPECT_EQ(GustCalcLabel(CalculatorBook({2, "60", "100", "100", "90", "0.2", "x"})),
            " G = #DIV/0!");
}

// Each box with a limit refuses a text just beyond it and takes the limit itself; a box that
// lost its rule would take both.
TEST(GustCalcTest, EveryLimitedBoxHasItsRule) {
  struct Case {
    std::string GustCalcValues::*field;
    const char* refused;
    const char* taken;
  };
  const Case cases[] = {
      {&GustCalcValues::height, "0.99", "2000"}, {&GustCalcValues::height, "2000.01", "1"},
      {&GustCalcValues::width, "0.9", "1"},      {&GustCalcValues::depth, "0.9", "1"},
      {&GustCalcValues::frequency, "-0.1", "0"}, {&GustCalcValues::frequency, "100.1", "100"},
      {&GustCalcValues::damping, "0", "0.0001"}, {&GustCalcValues::damping, "50.1", "50"},
  };
  for (const Case& c : cases) {
    ScriptedPrompt prompt;
    GustCalcValues values;
    values.*c.field = c.refused;
    EXPECT_FALSE(CheckGustCalcFields(prompt, values)) << c.refused;
    values.*c.field = c.taken;
    EXPECT_TRUE(CheckGustCalcFields(prompt, values)) << c.taken;
  }
  ScriptedPrompt prompt;
  GustCalcValues anySpeed;
  anySpeed.wind = "-5";
  EXPECT_TRUE(CheckGustCalcFields(prompt, anySpeed));
}

// The value on a line of the page, found by its label in column B.
double LineValue(wb::Workbook& book, int sheet, const std::string& label) {
  book.SetActiveSheet(sheet);
  for (int row = 1; row <= book.LastRow(); ++row)
    if (book.CellText(row, 2) == label) return book.CellNumber(row, 9);
  ADD_FAILURE() << "no line " << label;
  return 0;
}

// The calculator keeps the older chain of the commentary: the report's flexible gust page of
// the same structure shares its first steps and its dynamic response sizes, but its Rn and G
// come from Eq. 6-11 and Eq. 6-8.
TEST(GustCalcTest, AgreesWithTheReportsGustPageUpToRnAndG) {
  ScriptedPrompt prompt;
  report::HeadlessReport headless(GUSTLINE_BIN_DIR, prompt);
  headless.ReadProject(std::nullopt);
  wb::WriteNamedNumber(headless.Project(), "Structure", 2);
  ASSERT_EQ(headless.CreateReport(), "Figure66B");
  wb::Workbook& page = headless.Report();
  const int gustPage = page.FindSheet("Page 3");
  // The default project: exposure C, h = 60 ft, B = L = 100 ft, V = 90 mph, n1 = 0.2 Hz, 1%.
  wb::Workbook& calc = CalculatorBook({2, "60", "100", "100", "90", "0.2", "1"});
  enum class Relation { Same, Squared, Differs };
  const struct {
    const char* calculator;
    const char* report;
    Relation relation;
  } lines[] = {
      {"z", "z", Relation::Same},
      {"Iz", "Iz", Relation::Same},
      {"Lz", "Lz", Relation::Same},
      {"Q²", "Q", Relation::Squared},
      {"Vz", "Vz", Relation::Same},
      {"N1", "N1", Relation::Same},
      {"Rn", "Rn", Relation::Differs},
      {"nh = 4.6·n1·h / Vz", "nh = 4.6·n1·h / Vz", Relation::Same},
      {"nd = 15.4·n1·d / Vz", "nl = 15.4·n1·L / Vz)", Relation::Same},
      {"Rh", "Rh", Relation::Same},
      {"Rd", "RL", Relation::Same},
      {"G", "G", Relation::Differs},
  };
  for (const auto& line : lines) {
    const double mine = LineValue(calc, 2, line.calculator);
    double theirs = LineValue(page, gustPage, line.report);
    if (line.relation == Relation::Squared) theirs *= theirs;
    const bool same = std::abs(mine - theirs) <= 1e-12 * std::abs(theirs);
    EXPECT_EQ(same, line.relation != Relation::Differs)
        << line.calculator << ' ' << mine << ' ' << theirs;
  }
  EXPECT_DOUBLE_EQ(LineValue(page, gustPage, "G"), 1.466562187121554);
  EXPECT_DOUBLE_EQ(LineValue(calc, 2, "G"), 1.5353348331163512);
}

}  // namespace
}  // namespace gustline
