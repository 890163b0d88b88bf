#pragma once

#include <span>

#include "ui/rules/RuleField.h"

namespace gustline {
class Prompt;
}

namespace gustline::rules {

// The check of a dialog at OK: every field with a rule, in the order of the form's
// controls, disabled ones too. The first failure gives its message, moves the focus to the
// field if it is enabled, and ends the walk with false.
bool CheckForm(Prompt& prompt, std::span<RuleField* const> fields);

}  // namespace gustline::rules
