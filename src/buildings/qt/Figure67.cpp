#include "buildings/qt/Figure67.h"

#include "core/Application.h"
#include "core/ProcessState.h"
#include "ui/rules/qt/PropertyDialog.h"
#include "ui_Figure67.h"

namespace gustline {

Figure67::Figure67(Application& app, QWidget* parent)
    : QDialog(parent), app_(app), ui_(std::make_unique<Ui::Figure67>()) {
  ui_->setupUi(this);
  connect(ui_->Option1_0, &QRadioButton::toggled, this, [this] { UpdateQiFields(); });
  connect(ui_->Command1, &QPushButton::clicked, this, [this] { Command1_Click(); });
  connect(ui_->Command2, &QPushButton::clicked, this, &QDialog::reject);
  ShowValues(LoadFigure67(app_.state.ProjectWorkbook()));
}

Figure67::~Figure67() = default;

Figure67Values Figure67::Values() const {
  Figure67Values v;
  v.table64 = table64_;
  rules::ReadFields(*this, kFigure67Fields, v);
  return v;
}

void Figure67::ShowValues(const Figure67Values& v) {
  table64_ = v.table64;
  rules::ShowFields(*this, kFigure67Fields, v);
  UpdateQiFields();
}

void Figure67::UpdateQiFields() {
  const bool enabled = QiChoiceEnabled(table64_);
  ui_->Option1_0->setEnabled(enabled);
  ui_->Option1_1->setEnabled(enabled);
  ui_->Text4->setEnabled(enabled && ui_->Option1_1->isChecked());
}

void Figure67::Command1_Click() {
  if (!rules::CheckFields(app_.prompt, *this, kFigure67Fields)) return;
  const Figure67Values v = Values();
  if (const auto refusal = Figure67Refusal(v)) {
    app_.prompt.Show(*refusal);
    return;
  }
  AcceptPropertyValues(
      *this, app_, [&v](wb::Workbook& project) { SaveFigure67(project, v); }, true);
}

}  // namespace gustline
