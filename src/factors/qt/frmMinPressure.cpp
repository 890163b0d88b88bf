#include "factors/qt/frmMinPressure.h"

#include "core/Application.h"
#include "core/ProcessState.h"
#include "ui/rules/qt/PropertyDialog.h"
#include "ui_frmMinPressure.h"

namespace gustline {

frmMinPressure::frmMinPressure(Application& app, QWidget* parent)
    : QDialog(parent), app_(app), ui_(std::make_unique<Ui::frmMinPressure>()) {
  ui_->setupUi(this);
  connect(ui_->Command1, &QPushButton::clicked, this, [this] { Command1_Click(); });
  connect(ui_->Command2, &QPushButton::clicked, this, &QDialog::reject);
  ShowValues(LoadMinPressure(app_.state.ProjectWorkbook()));
}

frmMinPressure::~frmMinPressure() = default;

MinPressureValues frmMinPressure::Values() const {
  MinPressureValues v;
  rules::ReadFields(*this, kMinPressureFields, v);
  return v;
}

void frmMinPressure::ShowValues(const MinPressureValues& v) {
  rules::ShowFields(*this, kMinPressureFields, v);
}

void frmMinPressure::Command1_Click() {
  AcceptProperties(*this, app_, kMinPressureFields,
                   [this](wb::Workbook& project) { SaveMinPressure(project, Values()); });
}

}  // namespace gustline
