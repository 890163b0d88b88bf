#include "buildings/qt/Fig610.h"

#include "core/Application.h"
#include "core/ProcessState.h"
#include "ui/rules/qt/AngleSlider.h"
#include "ui/rules/qt/PropertyDialog.h"
#include "ui_Fig610.h"

namespace gustline {

Fig610::Fig610(Application& app, QWidget* parent)
    : QDialog(parent), app_(app), ui_(std::make_unique<Ui::Fig610>()) {
  ui_->setupUi(this);
  rules::FollowAngle(*ui_->Text1, *ui_->Slider1);
  connect(ui_->Check1, &QCheckBox::toggled, ui_->Text2, &QLineEdit::setEnabled);
  connect(ui_->Command1, &QPushButton::clicked, this, [this] { Command1_Click(); });
  connect(ui_->Command2, &QPushButton::clicked, this, &QDialog::reject);
  ShowValues(LoadFig610(app_.state.ProjectWorkbook()));
}

Fig610::~Fig610() = default;

Fig610Values Fig610::Values() const {
  Fig610Values v;
  rules::ReadFields(*this, kFig610Fields, v);
  return v;
}

void Fig610::ShowValues(const Fig610Values& v) {
  rules::ShowFields(*this, kFig610Fields, v);
  ui_->Text2->setEnabled(v.hasParapet);
}

void Fig610::Command1_Click() {
  AcceptProperties(*this, app_, kFig610Fields,
                   [this](wb::Workbook& project) { SaveFig610(project, Values()); });
}

}  // namespace gustline
