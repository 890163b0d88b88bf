#include "ui/rules/qt/FormFields.h"

#include <QAbstractButton>
#include <QAbstractSlider>
#include <QButtonGroup>
#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QRadioButton>
#include <stdexcept>

#include "ui/rules/CheckForm.h"
#include "ui/rules/RuleField.h"
#include "ui/rules/qt/FieldDisplay.h"

namespace gustline::rules {
namespace {

QString Name(std::string_view name) {
  return QString::fromUtf8(name.data(), static_cast<qsizetype>(name.size()));
}

[[noreturn]] void Fault(const QWidget& form, std::string_view control, const char* what) {
  throw std::logic_error(form.objectName().toStdString() + "." + std::string(control) + ": " +
                         what);
}

QWidget* Find(const QWidget& form, std::string_view control) {
  return form.findChild<QWidget*>(Name(control));
}

QLineEdit& TextBox(const QWidget& form, std::string_view control) {
  auto* box = qobject_cast<QLineEdit*>(Find(form, control));
  if (box == nullptr) Fault(form, control, "no text box");
  return *box;
}

// Option1_0, Option1_1 ... for the stem Option1, as far as they go.
std::vector<QAbstractButton*> Options(const QWidget& form, std::string_view stem) {
  std::vector<QAbstractButton*> options;
  while (auto* option =
             form.findChild<QAbstractButton*>(Name(stem) + '_' + QString::number(options.size()))) {
    options.push_back(option);
  }
  if (options.empty()) Fault(form, stem, "no control or option array");
  return options;
}

// An exclusive group, or the option's parent, would keep one option set.
void Clear(QAbstractButton& option) {
  if (QButtonGroup* group = option.group()) {
    const bool exclusive = group->exclusive();
    group->setExclusive(false);
    option.setChecked(false);
    group->setExclusive(exclusive);
    return;
  }
  const bool exclusive = option.autoExclusive();
  option.setAutoExclusive(false);
  option.setChecked(false);
  option.setAutoExclusive(exclusive);
}

// A text box with the rule of its field, as the check of OK walks it.
class TextBoxRule : public RuleField {
 public:
  TextBoxRule(QLineEdit& box, std::string_view rule) : box_(box), rule_(rule) {}
  std::string Rule() const override { return std::string(rule_); }
  std::string Text() const override { return box_.text().toStdString(); }
  bool IsEnabled() const override { return box_.isEnabled(); }
  void SetFocus() override {
    BringForward(box_);
    box_.setFocus();
  }

 private:
  QLineEdit& box_;
  std::string_view rule_;
};

}  // namespace

void ReadControl(const QWidget& form, std::string_view control, int, std::string& text) {
  text = TextBox(form, control).text().toStdString();
}

void ReadControl(const QWidget& form, std::string_view control, int, bool& ticked) {
  if (QWidget* widget = Find(form, control)) {
    auto* button = qobject_cast<QAbstractButton*>(widget);
    if (button == nullptr) Fault(form, control, "holds no tick");
    ticked = button->isChecked();
    return;
  }
  int option = ticked ? 1 : 0;
  ReadControl(form, control, 0, option);
  ticked = option == 1;
}

void ReadControl(const QWidget& form, std::string_view control, int firstOption, int& index) {
  QWidget* widget = Find(form, control);
  if (auto* box = qobject_cast<QComboBox*>(widget)) {
    index = box->currentIndex();
  } else if (auto* list = qobject_cast<QListWidget*>(widget)) {
    index = list->currentRow();
  } else if (auto* slider = qobject_cast<QAbstractSlider*>(widget)) {
    index = slider->value();
  } else if (widget != nullptr) {
    Fault(form, control, "holds no index");
  } else {
    const std::vector<QAbstractButton*> options = Options(form, control);
    for (std::size_t i = 0; i < options.size(); ++i) {
      if (options[i]->isChecked()) index = firstOption + static_cast<int>(i);
    }
  }
}

void ShowControl(QWidget& form, std::string_view control, int, const std::string& text) {
  TextBox(form, control).setText(QString::fromStdString(text));
}

void ShowControl(QWidget& form, std::string_view control, int, bool ticked) {
  if (QWidget* widget = Find(form, control)) {
    auto* button = qobject_cast<QAbstractButton*>(widget);
    if (button == nullptr) Fault(form, control, "holds no tick");
    button->setChecked(ticked);
    return;
  }
  ShowControl(form, control, 0, ticked ? 1 : 0);
}

void ShowControl(QWidget& form, std::string_view control, int firstOption, int index) {
  QWidget* widget = Find(form, control);
  if (auto* box = qobject_cast<QComboBox*>(widget)) {
    box->setCurrentIndex(index);
  } else if (auto* list = qobject_cast<QListWidget*>(widget)) {
    list->setCurrentRow(index);
  } else if (auto* slider = qobject_cast<QAbstractSlider*>(widget)) {
    slider->setValue(index);
  } else if (widget != nullptr) {
    Fault(form, control, "holds no index");
  } else {
    const std::vector<QAbstractButton*> options = Options(form, control);
    const int option = index - firstOption;
    if (option >= 0 && option < static_cast<int>(options.size())) {
      options[static_cast<std::size_t>(option)]->setChecked(true);
    } else {
      for (QAbstractButton* each : options) Clear(*each);
    }
  }
}

bool CheckControls(Prompt& prompt, QWidget& form, const std::vector<ControlRule>& rules) {
  std::vector<TextBoxRule> fields;
  fields.reserve(rules.size());
  for (const auto& [control, rule] : rules) fields.emplace_back(TextBox(form, control), rule);
  std::vector<RuleField*> walk;
  walk.reserve(fields.size());
  for (TextBoxRule& field : fields) walk.push_back(&field);
  return CheckForm(prompt, walk);
}

QButtonGroup* OptionGroup(QWidget& form, std::string_view array, int count) {
  auto* group = new QButtonGroup(&form);
  for (int i = 0; i < count; ++i) {
    const QString name = QString::fromUtf8(array.data(), static_cast<qsizetype>(array.size())) +
                         QStringLiteral("_") + QString::number(i);
    group->addButton(form.findChild<QRadioButton*>(name), i);
  }
  return group;
}

}  // namespace gustline::rules
