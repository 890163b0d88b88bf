#include "ui/rules/CheckForm.h"

#include "ui/rules/CheckRule.h"

namespace gustline::rules {

bool CheckForm(Prompt& prompt, std::span<RuleField* const> fields) {
  for (RuleField* field : fields) {
    const std::string rule = field->Rule();
    if (rule.empty() || CheckRule(prompt, rule, field->Text())) continue;
    if (field->IsEnabled()) field->SetFocus();
    return false;
  }
  return true;
}

}  // namespace gustline::rules
