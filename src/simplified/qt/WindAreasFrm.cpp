#include "simplified/qt/WindAreasFrm.h"

#include <utility>

#include "core/Application.h"
#include "core/FacilityErrorReport.h"
#include "core/ProcessState.h"
#include "core/workbook/value/FacilityError.h"
#include "ui/rules/qt/FormFields.h"
#include "ui_WindAreasFrm.h"

namespace gustline {

WindAreasFrm::WindAreasFrm(Application& app, QWidget* parent)
    : QDialog(parent), app_(app), ui_(std::make_unique<Ui::WindAreasFrm>()) {
  ui_->setupUi(this);
  SetHelp({});
  connect(ui_->Command1, &QPushButton::clicked, this, [this] { Command1_Click(); });
  connect(ui_->Command2, &QPushButton::clicked, this, &QDialog::reject);
  connect(ui_->Command3, &QPushButton::clicked, this, [this] {
    if (help_) help_();
  });
  try {
    ShowValues(LoadWindAreas(app_.state.ProjectWorkbook()));
  } catch (const wb::FacilityError& error) {
    ReportFacilityError(app_.prompt, error);
  }
}

WindAreasFrm::~WindAreasFrm() = default;

void WindAreasFrm::SetHelp(std::function<void()> help) {
  help_ = std::move(help);
  ui_->Command3->setEnabled(static_cast<bool>(help_));
}

WindAreas WindAreasFrm::Values() const {
  WindAreas areas;
  rules::ReadFields(*this, kWindAreasFields, areas);
  return areas;
}

void WindAreasFrm::ShowValues(const WindAreas& areas) {
  rules::ShowFields(*this, kWindAreasFields, areas);
}

void WindAreasFrm::Command1_Click() {
  if (!rules::CheckFields(app_.prompt, *this, kWindAreasFields)) return;
  try {
    SaveWindAreas(app_.state.ProjectWorkbook(), Values());
  } catch (const wb::FacilityError& error) {
    ReportFacilityError(app_.prompt, error);
  }
  confirmed_ = true;
  accept();
}

}  // namespace gustline
