#include "ui/qt/Units.h"

#include "core/Application.h"
#include "core/ProcessState.h"
#include "ui/rules/qt/PropertyDialog.h"
#include "ui_Units.h"

namespace gustline {

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
  rules::ReadFields(*this, kUnitsFields, v);
  return v;
}

void Units::ShowValues(const UnitsValues& v) {
  rules::ShowFields(*this, kUnitsFields, v);
}

void Units::Command1_Click() {
  AcceptProperties(*this, app_, kUnitsFields,
                   [this](wb::Workbook& project) { SaveUnits(project, Values()); });
}

}  // namespace gustline
