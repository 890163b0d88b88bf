#include "ui/rules/CellRules.h"

#include <array>
#include <string>

#include "core/workbook/NumberFormat.h"
#include "core/workbook/TextCompare.h"
#include "ui/rules/CheckRule.h"
#include "ui/rules/FieldNumber.h"

namespace gustline::rules {
namespace {

constexpr std::array<CellRule, 16> kCellRules = {{
    {"frmWindProp", "Text6", "WindSpeed", ">=0.0,<=500.00", 1},
    {"frmWindProp", "Text7", "MeanSeaLevel", ">=0.0,<=10000", 1},
    {"frmWindProp", "Text1", "Height", ">=1.00,<=2000.00", 1},
    {"frmWindProp", "Text2", "Width", ">=1.0", 1},
    {"frmWindProp", "Text3", "Depth", ">=1.0", 1},
    {"frmWindProp", "Text4", "Frequency", ">=0,<=100.00", 1},
    {"frmWindProp", "Text5", "Damping", ">=0.0001,<=50.0", 100},
    {"frmWindProp", "HillHeight", "HillHeight", ">=1.0", 1},
    {"frmWindProp", "HillLh", "HillLh", ">=1", 1},
    {"frmWindProp", "HillX", "HillX", ">=1", 1},
    {"Fig66", "Text1", "Figure63LB", ">=0,<=1000.0", 1},
    {"Fig66", "Text2", "Figure63WinAng", ">=0,<=90", 1},
    {"Fig66", "Text3", "Figure63LeeAng", ">=0,<=90", 1},
    {"Fig66", "Text4", "Figure63Area", ">=1,<=10000", 1},
    {"Fig66", "Text5", "Figure63HL", ">=0,<=1000", 1},
    {"Fig610", "Text1", "Figure64Angle", ">=0,<=90", 1},
}};

}  // namespace

std::span<const CellRule> CellRules() {
  return kCellRules;
}

const CellRule* FindCellRule(std::string_view cell) {
  for (const CellRule& rule : kCellRules)
    if (wb::EqualNoCase(rule.cell, cell)) return &rule;
  return nullptr;
}

bool CheckCellInput(Prompt& prompt, std::string_view cell, std::string_view text) {
  const CellRule* rule = FindCellRule(cell);
  if (rule == nullptr) return true;
  const auto number = FieldNumber(text);
  // The field shows the value in its own unit, and the rule is written in that unit.
  const std::string fieldText = number && rule->fieldPerCell != 1
                                    ? wb::FormatNumber(*number * rule->fieldPerCell, "General")
                                    : std::string(text);
  return CheckRule(prompt, rule->rule, fieldText);
}

}  // namespace gustline::rules
