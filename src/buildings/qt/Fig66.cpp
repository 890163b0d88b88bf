#include "buildings/qt/Fig66.h"

#include "core/Application.h"
#include "core/ProcessState.h"
#include "ui/rules/qt/AngleSlider.h"
#include "ui/rules/qt/PropertyDialog.h"
#include "ui_Fig66.h"

namespace gustline {

Fig66::Fig66(Application& app, std::function<void()> wallGeometry, QWidget* parent)
    : QDialog(parent), app_(app), ui_(std::make_unique<Ui::Fig66>()) {
  ui_->setupUi(this);
  ui_->Command3->setEnabled(static_cast<bool>(wallGeometry));
  if (wallGeometry) connect(ui_->Command3, &QPushButton::clicked, this, std::move(wallGeometry));
  rules::FollowAngle(*ui_->Text2, *ui_->Slider1);
  rules::FollowAngle(*ui_->Text3, *ui_->Slider2);
  connect(ui_->Option1_0, &QRadioButton::toggled, this, [this] { UpdateQiFields(); });
  connect(ui_->Check1, &QCheckBox::toggled, ui_->Text7, &QLineEdit::setEnabled);
  connect(ui_->Command1, &QPushButton::clicked, this, [this] { Command1_Click(); });
  connect(ui_->Command2, &QPushButton::clicked, this, &QDialog::reject);
  ShowValues(LoadFig66(app_.state.ProjectWorkbook()));
}

Fig66::~Fig66() = default;

Fig66Values Fig66::Values() const {
  Fig66Values v;
  v.table64 = table64_;
  rules::ReadFields(*this, kFig66Fields, v);
  return v;
}

void Fig66::ShowValues(const Fig66Values& v) {
  table64_ = v.table64;
  rules::ShowFields(*this, kFig66Fields, v);
  ui_->Text7->setEnabled(v.hasParapet);
  UpdateQiFields();
}

void Fig66::UpdateQiFields() {
  const bool enabled = QiChoiceEnabled(table64_);
  ui_->Option1_0->setEnabled(enabled);
  ui_->Option1_1->setEnabled(enabled);
  ui_->Text6->setEnabled(enabled && ui_->Option1_1->isChecked());
}

void Fig66::Command1_Click() {
  AcceptProperties(*this, app_, kFig66Fields,
                   [this](wb::Workbook& project) { SaveFig66(project, Values()); });
}

}  // namespace gustline
