#pragma once

#include <QLineEdit>
#include <QVariant>
#include <initializer_list>
#include <vector>

#include "ui/rules/CheckForm.h"
#include "ui/rules/RuleField.h"

namespace gustline::rules {

// A Designer line edit as a rule field: its rule is the dynamic property "tag" of the form.
class LineEditField : public RuleField {
 public:
  explicit LineEditField(QLineEdit& edit) : edit_(edit) {}
  std::string Rule() const override { return edit_.property("tag").toString().toStdString(); }
  std::string Text() const override { return edit_.text().toStdString(); }
  bool IsEnabled() const override { return edit_.isEnabled(); }
  void SetFocus() override { edit_.setFocus(); }

 private:
  QLineEdit& edit_;
};

// CheckForm over line edits given in the order of the form's controls.
inline bool CheckLineEdits(Prompt& prompt, std::initializer_list<QLineEdit*> edits) {
  std::vector<LineEditField> fields;
  fields.reserve(edits.size());
  for (QLineEdit* edit : edits) fields.emplace_back(*edit);
  std::vector<RuleField*> walk;
  for (LineEditField& field : fields) walk.push_back(&field);
  return CheckForm(prompt, walk);
}

}  // namespace gustline::rules
