#include "structures/qt/Figure621.h"

#include <QButtonGroup>

#include "core/Application.h"
#include "core/ProcessState.h"
#include "ui/rules/qt/PropertyDialog.h"
#include "ui_Figure621.h"

namespace gustline {

Figure621::Figure621(Application& app, QWidget* parent)
    : QDialog(parent), app_(app), ui_(std::make_unique<Ui::Figure621>()) {
  ui_->setupUi(this);
  shape_ = rules::OptionGroup(*this, "Option1", 2);
  connect(shape_, &QButtonGroup::idToggled, this, [this](int id, bool checked) {
    if (checked) ShowShape(id);
  });
  connect(ui_->Command1, &QPushButton::clicked, this, [this] { Command1_Click(); });
  connect(ui_->Command2, &QPushButton::clicked, this, &QDialog::reject);
  ShowValues(LoadFigure621(app_.state.ProjectWorkbook()));
}

Figure621::~Figure621() = default;

Figure621Values Figure621::Values() const {
  Figure621Values v = loaded_;
  rules::ReadFields(*this, kFigure621Fields, v);
  return v;
}

void Figure621::ShowValues(const Figure621Values& v) {
  loaded_ = v;
  rules::ShowFields(*this, kFigure621Fields, v);
  ShowShape(v.memberShape);
}

void Figure621::ShowShape(int memberShape) {
  const bool enabled = MemberDiameterEnabled(memberShape);
  ui_->Text2->setEnabled(enabled);
  ui_->Label2->setEnabled(enabled);
}

void Figure621::Command1_Click() {
  const Figure621Values v = Values();
  AcceptProperties(*this, app_, kFigure621Fields,
                   [&v](wb::Workbook& project) { SaveFigure621(project, v); });
}

}  // namespace gustline
