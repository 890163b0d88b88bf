#include "buildings/Fig610.h"

#include "core/Application.h"
#include "core/ProcessState.h"
#include "core/ReportHook.h"
#include "core/workbook/NumberFormat.h"
#include "ui/rules/qt/LineEditField.h"
#include "ui_Fig610.h"

namespace gustline {

Fig610::Fig610(Application& app, QWidget* parent)
    : QDialog(parent), app_(app), ui_(std::make_unique<Ui::Fig610>()) {
  ui_->setupUi(this);
  connect(ui_->Slider1, &QSlider::valueChanged, this, [this](int value) {
    ui_->Text1->setText(QString::fromStdString(wb::FormatNumber(value, "0.00")));
  });
  connect(ui_->Check1, &QCheckBox::toggled, ui_->Text2, &QLineEdit::setEnabled);
  connect(ui_->Command1, &QPushButton::clicked, this, [this] { Command1_Click(); });
  connect(ui_->Command2, &QPushButton::clicked, this, &QDialog::reject);
  ShowValues(LoadFig610(app_.state.ProjectWorkbook()));
}

Fig610::~Fig610() = default;

Fig610Values Fig610::Values() const {
  return {ui_->Text1->text().toStdString(), ui_->Check1->isChecked(),
          ui_->Text2->text().toStdString()};
}

void Fig610::ShowValues(const Fig610Values& v) {
  ui_->Text1->setText(QString::fromStdString(v.roofAngle));
  ui_->Check1->setChecked(v.hasParapet);
  ui_->Text2->setText(QString::fromStdString(v.parapetElevation));
  ui_->Text2->setEnabled(v.hasParapet);
}

void Fig610::Command1_Click() {
  if (!rules::CheckLineEdits(app_.prompt, {ui_->Text1})) return;
  SaveFig610(app_.state.ProjectWorkbook(), Values());
  app_.state.modifiedFlag = true;
  accept();
  app_.report.CreateReport(app_);
}

}  // namespace gustline
