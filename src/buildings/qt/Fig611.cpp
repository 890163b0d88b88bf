#include "buildings/qt/Fig611.h"

#include <QButtonGroup>
#include <QSignalBlocker>
#include <initializer_list>

#include "core/Application.h"
#include "core/FacilityErrorReport.h"
#include "core/ProcessState.h"
#include "core/workbook/value/FacilityError.h"
#include "ui/rules/qt/AngleSlider.h"
#include "ui/rules/qt/PropertyDialog.h"
#include "ui_Fig611.h"

namespace gustline {

Fig611::Fig611(Application& app, int roofType, QWidget* parent)
    : QDialog(parent), app_(app), ui_(std::make_unique<Ui::Fig611>()) {
  ui_->setupUi(this);
  roofType_ = rules::OptionGroup(*this, "Option1", 4);
  connect(roofType_, &QButtonGroup::idToggled, this, [this](int id, bool checked) {
    if (checked) Option1_Click(id);
  });
  rules::FollowAngle(*ui_->Text6, *ui_->Slider1);
  connect(ui_->Check1, &QCheckBox::toggled, ui_->Text9, &QLineEdit::setEnabled);
  connect(ui_->Command1, &QPushButton::clicked, this, [this] { Command1_Click(); });
  connect(ui_->Command2, &QPushButton::clicked, this, &QDialog::reject);
  ShowValues(LoadFig611(app_.state.ProjectWorkbook(), roofType));
}

Fig611::~Fig611() = default;

Fig611Values Fig611::Values() const {
  Fig611Values v;
  rules::ReadFields(*this, kFig611Fields, v);
  return v;
}

void Fig611::ShowValues(const Fig611Values& v) {
  {
    // The roof fields come with the values, not from the roof type's cells.
    const QSignalBlocker keepRoofFields(roofType_);
    rules::ShowFields(*this, kFig611Fields, v);
  }
  ui_->Text9->setEnabled(v.hasParapet);
  const bool primeZones = PrimeZonesEnabled(v.roofType);
  for (QWidget* control :
       std::initializer_list<QWidget*>{ui_->Label7, ui_->Text7, ui_->Label8, ui_->Text8}) {
    control->setEnabled(primeZones);
  }
}

void Fig611::Option1_Click(int roofType) {
  Fig611Values v = Values();
  v.roofType = roofType;
  try {
    LoadFig611Roof(app_.state.ProjectWorkbook(), v);
  } catch (const wb::FacilityError& error) {
    ReportFacilityError(app_.prompt, error);
  }
  ShowValues(v);
}

void Fig611::Command1_Click() {
  AcceptProperties(*this, app_, kFig611Fields,
                   [this](wb::Workbook& project) { SaveFig611(project, Values()); });
}

}  // namespace gustline
