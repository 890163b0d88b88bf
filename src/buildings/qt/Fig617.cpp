#include "buildings/qt/Fig617.h"

#include "core/Application.h"
#include "core/ProcessState.h"
#include "ui/rules/qt/AngleSlider.h"
#include "ui/rules/qt/PropertyDialog.h"
#include "ui_Fig617.h"

namespace gustline {

Fig617::Fig617(Application& app, QWidget* parent)
    : QDialog(parent), app_(app), ui_(std::make_unique<Ui::Fig617>()) {
  ui_->setupUi(this);
  rules::FollowAngle(*ui_->Text6, *ui_->Slider1);
  connect(ui_->Option1_0, &QRadioButton::toggled, this, [this] { UpdateQiFields(); });
  connect(ui_->Check1, &QCheckBox::toggled, ui_->Text8, &QLineEdit::setEnabled);
  connect(ui_->Command1, &QPushButton::clicked, this, [this] { Command1_Click(); });
  connect(ui_->Command2, &QPushButton::clicked, this, &QDialog::reject);
  ShowValues(LoadFig617(app_.state.ProjectWorkbook()));
}

Fig617::~Fig617() = default;

Fig617Values Fig617::Values() const {
  Fig617Values v;
  v.table64 = table64_;
  rules::ReadFields(*this, kFig617Fields, v);
  return v;
}

void Fig617::ShowValues(const Fig617Values& v) {
  table64_ = v.table64;
  rules::ShowFields(*this, kFig617Fields, v);
  ui_->Text8->setEnabled(v.hasParapet);
  UpdateQiFields();
}

void Fig617::UpdateQiFields() {
  const bool enabled = QiChoiceEnabled(table64_);
  ui_->Option1_0->setEnabled(enabled);
  ui_->Option1_1->setEnabled(enabled);
  ui_->Text7->setEnabled(enabled && ui_->Option1_1->isChecked());
}

void Fig617::Command1_Click() {
  AcceptProperties(*this, app_, kFig617Fields,
                   [this](wb::Workbook& project) { SaveFig617(project, Values()); });
}

}  // namespace gustline
