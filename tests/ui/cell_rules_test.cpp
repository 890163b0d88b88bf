// The rules that the command line applies to --set values: the same as the dialogs' own
// tags, on cells that the project holds.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <regex>
#include <string>

#include "core/Prompt.h"
#include "core/workbook/NamedCells.h"
#include "core/workbook/Workbook.h"
#include "ui/rules/CellRules.h"

namespace gustline::rules {
namespace {

namespace fs = std::filesystem;

// The tag of a text box in the dialog's Designer form, with its entities read back.
std::string FormTag(const std::string& dialog, std::string_view field) {
  for (const auto& entry : fs::recursive_directory_iterator(GUSTLINE_SOURCE_DIR "/src")) {
    if (entry.path().filename() != dialog + ".ui") continue;
    std::ifstream in(entry.path());
    const std::string form{std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
    const std::regex tag("name=\"" + std::string(field) +
                         "\">\\s*<property name=\"tag\"[^>]*>\\s*<string>([^<]*)</string>");
    std::smatch found;
    if (!std::regex_search(form, found, tag)) return "no tag";
    std::string rule = std::regex_replace(found[1].str(), std::regex("&gt;"), ">");
    return std::regex_replace(rule, std::regex("&lt;"), "<");
  }
  return "no form";
}

TEST(CellRulesTest, EachRuleIsItsDialogsTagOnACellOfTheProject) {
  wb::Workbook project("WindData");
  project.ReadWorkbook(GUSTLINE_WINDDATA_PATH);
  for (const CellRule& rule : CellRules()) {
    SCOPED_TRACE(std::string(rule.dialog) + "." + std::string(rule.field));
    EXPECT_EQ(FormTag(std::string(rule.dialog), rule.field), rule.rule);
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
