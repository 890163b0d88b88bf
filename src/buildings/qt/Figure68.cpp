#include "buildings/qt/Figure68.h"

#include "core/Application.h"
#include "core/ProcessState.h"
#include "ui/rules/qt/PropertyDialog.h"
#include "ui_Figure68.h"

namespace gustline {

Figure68::Figure68(Application& app, QWidget* parent)
    : QDialog(parent), app_(app), ui_(std::make_unique<Ui::Figure68>()) {
  ui_->setupUi(this);
  connect(ui_->Option2_0, &QRadioButton::toggled, this, [this] { UpdateQiFields(); });
  connect(ui_->Command1, &QPushButton::clicked, this, [this] { Command1_Click(); });
  connect(ui_->Command2, &QPushButton::clicked, this, &QDialog::reject);
  ShowValues(LoadFigure68(app_.state.ProjectWorkbook()));
}

Figure68::~Figure68() = default;

Figure68Values Figure68::Values() const {
  Figure68Values v;
  v.table64 = table64_;
  rules::ReadFields(*this, kFigure68Fields, v);
  return v;
}

void Figure68::ShowValues(const Figure68Values& v) {
  table64_ = v.table64;
  rules::ShowFields(*this, kFigure68Fields, v);
  UpdateQiFields();
}

void Figure68::UpdateQiFields() {
  const bool enabled = QiChoiceEnabled(table64_);
  ui_->Option2_0->setEnabled(enabled);
  ui_->Option2_1->setEnabled(enabled);
  ui_->Text5->setEnabled(enabled && ui_->Option2_1->isChecked());
}

void Figure68::Command1_Click() {
  AcceptProperties(*this, app_, kFigure68Fields,
                   [this](wb::Workbook& project) { SaveFigure68(project, Values()); });
}

}  // namespace gustline
