#pragma once

#include <string>

namespace gustline::rules {

// A text box as the rule check sees it: its rule (the control's tag), its text, whether it
// is enabled, and a way to give it the focus. Dialogs wrap their widgets in it, tests fake it.
class RuleField {
 public:
  virtual ~RuleField() = default;
  virtual std::string Rule() const = 0;
  virtual std::string Text() const = 0;
  virtual bool IsEnabled() const = 0;
  virtual void SetFocus() = 0;
};

}  // namespace gustline::rules
