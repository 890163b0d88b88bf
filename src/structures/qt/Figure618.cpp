#include "structures/qt/Figure618.h"

#include <QButtonGroup>

#include "core/Application.h"
#include "core/FacilityErrorReport.h"
#include "core/ProcessState.h"
#include "core/workbook/model/NamedCells.h"
#include "core/workbook/value/FacilityError.h"
#include "ui/rules/qt/AngleSlider.h"
#include "ui/rules/qt/PropertyDialog.h"
#include "ui_Figure618.h"

namespace gustline {

Figure618::Figure618(Application& app, QWidget* parent)
    : QDialog(parent), app_(app), ui_(std::make_unique<Ui::Figure618>()) {
  ui_->setupUi(this);
  roofType_ = rules::OptionGroup(*this, "RoofTypeOption", 4);
  connect(roofType_, &QButtonGroup::idToggled, this, [this](int id, bool checked) {
    if (checked) RoofTypeOption_Click(FreeRoof::kMonoslope + id);
  });
  rules::FollowAngle(*ui_->RoofAngleEditBox, *ui_->RoofAngleSlider);
  connect(ui_->OKButton, &QPushButton::clicked, this, [this] { OKButton_Click(); });
  connect(ui_->CancelButton, &QPushButton::clicked, this, &QDialog::reject);
  ShowValues(LoadFigure618(app_.state.ProjectWorkbook()));
}

Figure618::~Figure618() = default;

Figure618Values Figure618::Values() const {
  Figure618Values v = working_;
  rules::ReadFields(*this, kFigure618Fields, v);
  return v;
}

void Figure618::ShowValues(const Figure618Values& v) {
  working_ = v;
  rules::ShowFields(*this, kFigure618Fields, v);
  ui_->Note5CheckBox->setEnabled(Note5Enabled(v.roofType));
}

void Figure618::RoofTypeOption_Click(int roofType) {
  working_.roofType = roofType;
  ui_->Note5CheckBox->setEnabled(Note5Enabled(roofType));
}

void Figure618::OKButton_Click() {
  if (!rules::CheckFields(app_.prompt, *this, kFigure618Fields)) return;
  const Figure618Values v = Values();
  try {
    wb::Workbook& project = app_.state.ProjectWorkbook();
    const auto refusal = Figure618Refusal(v, wb::ReadNamedNumber(project, "Height"),
                                          wb::ReadNamedNumber(project, "Width"));
    if (refusal) {
      app_.prompt.Show(*refusal);
      return;
    }
  } catch (const wb::FacilityError& error) {
    ReportFacilityError(app_.prompt, error);
    return;
  }
  AcceptPropertyValues(
      *this, app_, [&v](wb::Workbook& project) { SaveFigure618(project, v); }, true);
}

}  // namespace gustline
