#include "ui/Units.h"

#include <array>

#include "core/Application.h"
#include "core/FacilityErrorReport.h"
#include "core/ProcessState.h"
#include "core/ReportHook.h"
#include "core/StatusSummary.h"
#include "core/workbook/FacilityError.h"
#include "ui_Units.h"

namespace gustline {
namespace {

using OptionGroup = std::array<QRadioButton*, 2>;

// The index of the first option that is set; past the last when none is.
int SelectedIndex(const OptionGroup& group) {
  int index = 0;
  while (index < static_cast<int>(group.size()) && !group[index]->isChecked()) ++index;
  return index;
}

// A stored index that names no option shows the first.
void Select(const OptionGroup& group, int index) {
  const bool known = index >= 0 && index < static_cast<int>(group.size());
  group[known ? index : 0]->setChecked(true);
}

}  // namespace

Units::Units(Application& app, QWidget* parent)
    : QDialog(parent), app_(app), ui_(std::make_unique<Ui::Units>()) {
  ui_->setupUi(this);
  connect(ui_->Command1, &QPushButton::clicked, this, [this] { Command1_Click(); });
  connect(ui_->Command2, &QPushButton::clicked, this, &QDialog::reject);
  ShowValues(LoadUnits(app_.state.ProjectWorkbook()));
}

Units::~Units() = default;

UnitsValues Units::Values() const {
  UnitsValues v;
  v.pressure = SelectedIndex({ui_->Option1_0, ui_->Option1_1});
  v.force = SelectedIndex({ui_->Option2_0, ui_->Option2_1});
  v.moment = SelectedIndex({ui_->Option3_0, ui_->Option3_1});
  return v;
}

void Units::ShowValues(const UnitsValues& v) {
  Select({ui_->Option1_0, ui_->Option1_1}, v.pressure);
  Select({ui_->Option2_0, ui_->Option2_1}, v.force);
  Select({ui_->Option3_0, ui_->Option3_1}, v.moment);
}

void Units::Command1_Click() {
  SaveUnits(app_.state.ProjectWorkbook(), Values());
  app_.state.modifiedFlag = true;
  accept();
  app_.report.CreateReport(app_);
}

bool ShowUnits(QWidget* parent, Application& app) {
  try {
    UpdateStatusSummary(app.state.ProjectWorkbook(), app.view);
    Units dialog(app, parent);
    return dialog.exec() == QDialog::Accepted;
  } catch (const wb::FacilityError& error) {
    ReportFacilityError(app.prompt, error);
    return false;
  }
}

}  // namespace gustline
