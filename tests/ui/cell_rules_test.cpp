// The rules that the command line applies to --set values: those of the dialogs' field
// tables, on cells that the project holds.
#include <gtest/gtest.h>

#include <string>

#include "core/Prompt.h"
#include "core/workbook/model/NamedCells.h"
#include "core/workbook/model/Workbook.h"
#include "ui/rules/CellRules.h"

namespace gustline::rules {
namespace {

TEST(CellRulesTest, EachRuleIsOnACellOfTheProject) {
  wb::Workbook project("WindData");
  project.ReadWorkbook(GUSTLINE_WINDDATA_PATH);
  ASSERT_FALSE(CellRules().empty());
  for (const CellRule& rule : CellRules()) {
    SCOPED_TRACE(std::string(rule.dialog) + "." + std::string(rule.field));
    EXPECT_NO_THROW(wb::ReadNamedNumber(project, rule.cell));
  }
}

TEST(CellRulesTest, InputsAreTestedInTheFieldsUnit) {
  struct Case {
    const char* cell;
    const char* text;
    bool passes;
    const char* message;
  };
  const Case cases[] = {
      {"height", "2000", true, ""},
      {"Height", "2000.01", false, "Valid values are numbers from 1.000 to 2000.000"},
      {"Damping", "0.5", true, ""},
      {"Damping", "0.6", false, "Valid values are numbers from 0.000 to 50.000"},
      {"WindSpeed", "abc", false, "  Type mismatch  "},
      {"HillX", "0.5", false, "Valid value must be greater or equal to 1"},
      {"Figure63Area", "0.5", false, "Valid values are numbers from 1.000 to 10000.000"},
      {"Figure64Angle", "91", false, "Valid values are numbers from 0.000 to 90.000"},
      {"Figure67BAngle", "45.5", false, "Valid values are numbers from 0.000 to 45.000"},
      {"Figure65BAngle", "45", true, ""},
      {"Figure67AZ3p", "0.5", false, "Valid values are numbers from 1.000 to 1000.000"},
      {"Figure68Angle", "-1", false, "Valid values are numbers from 0.000 to 45.000"},
      {"Table65Ratio", "0.61", false, "Valid values are numbers from 0.000 to 0.600"},
      {"T65Ratio", "0.6", true, ""},
      {"Figure68LB", "1000.01", false, "Valid values are numbers from 0.000 to 1000.000"},
      {"Figure65BZone3", "0.5", false, "Valid values are numbers from 1.000 to 1000.000"},
      {"Table66Angle", "45.5", false, "Valid values are numbers from 0.000 to 45.000"},
      {"Dimension_a", "-1", true, ""},  // Figure 6-19 writes it unchecked
      {"AfBhRatio", "1.01", false, "Valid values are numbers from 0.000 to 1.000"},
      {"RatioOfSolidAreaToGrossArea", "0.69", false,
       "Valid values are numbers from 0.700 to 1.000"},
      {"Table69Dia", "0", false, "Valid values are numbers from 0.000 to 30.000"},
      {"System", "3", true, ""},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(std::string(c.cell) + "=" + c.text);
    ScriptedPrompt prompt;
    EXPECT_EQ(CheckCellInput(prompt, c.cell, c.text), c.passes);
    EXPECT_EQ(prompt.messages.empty() ? "" : prompt.messages.front().text, c.message);
  }
}

}  // namespace
}  // namespace gustline::rules
