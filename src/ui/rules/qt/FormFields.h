#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

#include "ui/rules/FormField.h"

class QButtonGroup;
class QWidget;

namespace gustline {
class Prompt;
}

namespace gustline::rules {

// A control of the form found by its object name, and the value it holds: a text box's
// text; a check box's or an option's tick, or whether the second of a pair of options is
// set; a combo box's index, a list's row, a slider's value, or the option set in an array
// counted from `firstOption`. An array with no option set leaves the index as it was; an
// index that names no option shows none set. A control the form lacks, or one that cannot
// hold the value, is a fault of the field table and throws std::logic_error.
void ReadControl(const QWidget& form, std::string_view control, int firstOption, std::string& text);
void ReadControl(const QWidget& form, std::string_view control, int firstOption, bool& ticked);
void ReadControl(const QWidget& form, std::string_view control, int firstOption, int& index);
void ShowControl(QWidget& form, std::string_view control, int firstOption, const std::string& text);
void ShowControl(QWidget& form, std::string_view control, int firstOption, bool ticked);
void ShowControl(QWidget& form, std::string_view control, int firstOption, int index);

// The option array NAME_0 .. NAME_(count-1) of the form as one exclusive group, owned by the
// form, each option with its index as id.
QButtonGroup* OptionGroup(QWidget& form, std::string_view array, int count);

// CheckForm over the text boxes named, each with its rule, in the order given.
using ControlRule = std::pair<std::string_view, std::string_view>;
bool CheckControls(Prompt& prompt, QWidget& form, const std::vector<ControlRule>& rules);

// The controls of the table into the values; members without a control keep theirs.
template <typename Values, std::size_t N>
void ReadFields(const QWidget& form, const FormField<Values> (&fields)[N], Values& values) {
  for (const FormField<Values>& field : fields) {
    std::visit(
        [&](auto member) { ReadControl(form, field.control, field.firstOption, values.*member); },
        field.member);
  }
}

template <typename Values, std::size_t N>
void ShowFields(QWidget& form, const FormField<Values> (&fields)[N], const Values& values) {
  for (const FormField<Values>& field : fields) {
    std::visit(
        [&](auto member) { ShowControl(form, field.control, field.firstOption, values.*member); },
        field.member);
  }
}

// The check of OK: every field with a rule, in the order of the table.
template <typename Values, std::size_t N>
bool CheckFields(Prompt& prompt, QWidget& form, const FormField<Values> (&fields)[N]) {
  std::vector<ControlRule> rules;
  for (const FormField<Values>& field : fields) {
    if (!field.rule.empty()) rules.emplace_back(field.control, field.rule);
  }
  return CheckControls(prompt, form, rules);
}

}  // namespace gustline::rules
