#include "ui/rules/CellRules.h"

#include <string>
#include <vector>

#include "buildings/ArchValues.h"
#include "buildings/Fig610Values.h"
#include "buildings/Fig611Values.h"
#include "buildings/Fig617Values.h"
#include "buildings/Fig66Values.h"
#include "core/workbook/value/NumberFormat.h"
#include "core/workbook/value/TextCompare.h"
#include "simplified/SimplifiedValues.h"
#include "simplified/WindAreasValues.h"
#include "structures/Figure618Values.h"
#include "structures/Figure619Values.h"
#include "structures/Figure620Values.h"
#include "structures/Figure621Values.h"
#include "ui/frmWindPropValues.h"
#include "ui/rules/CheckRule.h"
#include "ui/rules/FieldNumber.h"
#include "ui/rules/FormField.h"

namespace gustline::rules {
namespace {

template <typename Values, std::size_t N>
void AddRules(std::vector<CellRule>& rules, std::string_view dialog,
              const FormField<Values> (&fields)[N]) {
  for (const FormField<Values>& field : fields) {
    if (!field.cell.empty() && !field.rule.empty())
      rules.push_back({dialog, field.control, field.cell, field.rule, field.perCell});
  }
}

// The roof angle of Figures 6-11 to 6-15 writes the cell of the roof type chosen, and zones
// 2' and 3' the cells of monoslope roofs.
void AddFig611Rules(std::vector<CellRule>& rules) {
  for (const Fig611RoofCells& roof : kFig611RoofCells)
    rules.push_back({"Fig611", "Text6", roof.angle, kFig611AngleRule, 1});
  rules.push_back({"Fig611", "Text7", kZone2pCell, kFig611PrimeZoneRule, 1});
  rules.push_back({"Fig611", "Text8", kZone3pCell, kFig611PrimeZoneRule, 1});
}

}  // namespace

std::span<const CellRule> CellRules() {
  // Every dialog whose text boxes write the project's cells and are checked at OK; the boxes
  // of Figure 6-19 carry limits that its OK never checks, and so limit no cell.
  static const std::vector<CellRule> rules = [] {
    std::vector<CellRule> gathered;
    AddRules(gathered, "frmWindProp", kWindPropertiesFields);
    AddRules(gathered, "Fig66", kFig66Fields);
    AddRules(gathered, "Fig610", kFig610Fields);
    AddFig611Rules(gathered);
    AddRules(gathered, "Fig617", kFig617Fields);
    AddRules(gathered, "Figure68", kFigure68Fields);
    AddRules(gathered, "Figure68comp", kFigure68compFields);
    AddRules(gathered, "Figure618", kFigure618Fields);
    AddRules(gathered, "Figure619", kFigure619Fields);
    AddRules(gathered, "Figure620", kFigure620Fields);
    AddRules(gathered, "Figure621", kFigure621Fields);
    AddRules(gathered, "frmSimplified", kSimplifiedFields);
    AddRules(gathered, "WindAreasFrm", kWindAreasFields);
    return gathered;
  }();
  return rules;
}

const CellRule* FindCellRule(std::string_view cell) {
  for (const CellRule& rule : CellRules())
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
