#include "factors/frmMinPressure.h"

#include "core/Application.h"
#include "core/FacilityErrorReport.h"
#include "core/ProcessState.h"
#include "core/ReportHook.h"
#include "core/StatusSummary.h"
#include "core/workbook/FacilityError.h"
#include "core/workbook/NamedCells.h"
#include "ui_frmMinPressure.h"

namespace gustline {

frmMinPressure::frmMinPressure(Application& app, QWidget* parent)
    : QDialog(parent), app_(app), ui_(std::make_unique<Ui::frmMinPressure>()) {
  ui_->setupUi(this);
  connect(ui_->Command1, &QPushButton::clicked, this, [this] { Command1_Click(); });
  connect(ui_->Command2, &QPushButton::clicked, this, &QDialog::reject);
  SetUseMinimum(wb::ReadNamedInt(app_.state.ProjectWorkbook(), "UseMinWindPressure") == 1);
}

frmMinPressure::~frmMinPressure() = default;

bool frmMinPressure::UseMinimum() const {
  return ui_->Check1->isChecked();
}

void frmMinPressure::SetUseMinimum(bool use) {
  ui_->Check1->setChecked(use);
}

void frmMinPressure::Command1_Click() {
  wb::WriteNamedInt(app_.state.ProjectWorkbook(), "UseMinWindPressure", UseMinimum() ? 1 : 0);
  app_.state.modifiedFlag = true;
  accept();
  app_.report.CreateReport(app_);
}

bool ShowMinPressure(QWidget* parent, Application& app) {
  try {
    UpdateStatusSummary(app.state.ProjectWorkbook(), app.view);
    frmMinPressure dialog(app, parent);
    return dialog.exec() == QDialog::Accepted;
  } catch (const wb::FacilityError& error) {
    ReportFacilityError(app.prompt, error);
    return false;
  }
}

}  // namespace gustline
