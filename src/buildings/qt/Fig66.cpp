#include "buildings/Fig66.h"

#include "core/Application.h"
#include "core/ProcessState.h"
#include "core/ReportHook.h"
#include "core/workbook/NumberFormat.h"
#include "ui/rules/qt/LineEditField.h"
#include "ui_Fig66.h"

namespace gustline {

Fig66::Fig66(Application& app, QWidget* parent)
    : QDialog(parent), app_(app), ui_(std::make_unique<Ui::Fig66>()) {
  ui_->setupUi(this);
  // The geometry dialog comes with its own procedure; until then the button does nothing.
  ui_->Command3->setEnabled(false);
  const auto sliderToField = [](QLineEdit* field) {
    return [field](int value) {
      field->setText(QString::fromStdString(wb::FormatNumber(value, "0.00")));
    };
  };
  connect(ui_->Slider1, &QSlider::valueChanged, this, sliderToField(ui_->Text2));
  connect(ui_->Slider2, &QSlider::valueChanged, this, sliderToField(ui_->Text3));
  connect(ui_->Option1_0, &QRadioButton::toggled, this, [this] { UpdateQiFields(); });
  connect(ui_->Check1, &QCheckBox::toggled, ui_->Text7, &QLineEdit::setEnabled);
  connect(ui_->Command1, &QPushButton::clicked, this, [this] { Command1_Click(); });
  connect(ui_->Command2, &QPushButton::clicked, this, &QDialog::reject);
  ShowValues(LoadFig66(app_.state.ProjectWorkbook()));
}

Fig66::~Fig66() = default;

Fig66Values Fig66::Values() const {
  Fig66Values v;
  v.leewardLB = ui_->Text1->text().toStdString();
  v.windwardAngle = ui_->Text2->text().toStdString();
  v.leewardAngle = ui_->Text3->text().toStdString();
  v.area = ui_->Text4->text().toStdString();
  v.hL = ui_->Text5->text().toStdString();
  v.useQz = ui_->Option1_1->isChecked();
  v.z = ui_->Text6->text().toStdString();
  v.hasParapet = ui_->Check1->isChecked();
  v.parapetElevation = ui_->Text7->text().toStdString();
  v.table64 = table64_;
  return v;
}

void Fig66::ShowValues(const Fig66Values& v) {
  table64_ = v.table64;
  ui_->Text1->setText(QString::fromStdString(v.leewardLB));
  ui_->Text2->setText(QString::fromStdString(v.windwardAngle));
  ui_->Text3->setText(QString::fromStdString(v.leewardAngle));
  ui_->Text4->setText(QString::fromStdString(v.area));
  ui_->Text5->setText(QString::fromStdString(v.hL));
  (v.useQz ? ui_->Option1_1 : ui_->Option1_0)->setChecked(true);
  ui_->Text6->setText(QString::fromStdString(v.z));
  ui_->Check1->setChecked(v.hasParapet);
  ui_->Text7->setText(QString::fromStdString(v.parapetElevation));
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
  if (!rules::CheckLineEdits(app_.prompt,
                             {ui_->Text4, ui_->Text2, ui_->Text3, ui_->Text5, ui_->Text1})) {
    return;
  }
  SaveFig66(app_.state.ProjectWorkbook(), Values());
  app_.state.modifiedFlag = true;
  accept();
  app_.report.CreateReport(app_);
}

}  // namespace gustline
