#include "buildings/qt/Figure68comp.h"

#include "core/Application.h"
#include "core/ProcessState.h"
#include "ui/rules/qt/AngleSlider.h"
#include "ui/rules/qt/PropertyDialog.h"
#include "ui_Figure68comp.h"

namespace gustline {

Figure68comp::Figure68comp(Application& app, QWidget* parent)
    : QDialog(parent), app_(app), ui_(std::make_unique<Ui::Figure68comp>()) {
  ui_->setupUi(this);
  rules::FollowAngle(*ui_->Text6, *ui_->Slider1);
  connect(ui_->Option2_0, &QRadioButton::toggled, this, [this] { UpdateQiFields(); });
  connect(ui_->Command1, &QPushButton::clicked, this, [this] { Command1_Click(); });
  connect(ui_->Command2, &QPushButton::clicked, this, &QDialog::reject);
  ShowValues(LoadFigure68comp(app_.state.ProjectWorkbook()));
}

Figure68comp::~Figure68comp() = default;

Figure68compValues Figure68comp::Values() const {
  Figure68compValues v;
  v.table64 = table64_;
  rules::ReadFields(*this, kFigure68compFields, v);
  return v;
}

void Figure68comp::ShowValues(const Figure68compValues& v) {
  table64_ = v.table64;
  rules::ShowFields(*this, kFigure68compFields, v);
  UpdateQiFields();
}

void Figure68comp::UpdateQiFields() {
  const bool enabled = QiChoiceEnabled(table64_);
  ui_->Option2_0->setEnabled(enabled);
  ui_->Option2_1->setEnabled(enabled);
  ui_->Text5->setEnabled(enabled && ui_->Option2_1->isChecked());
}

void Figure68comp::Command1_Click() {
  AcceptProperties(*this, app_, kFigure68compFields,
                   [this](wb::Workbook& project) { SaveFigure68comp(project, Values()); });
}

}  // namespace gustline
