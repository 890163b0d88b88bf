#include "structures/qt/Figure620.h"

#include "core/Application.h"
#include "core/ProcessState.h"
#include "ui/rules/qt/PropertyDialog.h"
#include "ui_Figure620.h"

namespace gustline {

Figure620::Figure620(Application& app, QWidget* parent)
    : QDialog(parent), app_(app), ui_(std::make_unique<Ui::Figure620>()) {
  ui_->setupUi(this);
  connect(ui_->Command1, &QPushButton::clicked, this, [this] { Command1_Click(); });
  connect(ui_->Command2, &QPushButton::clicked, this, &QDialog::reject);
  ShowValues(LoadFigure620(app_.state.ProjectWorkbook()));
}

Figure620::~Figure620() = default;

Figure620Values Figure620::Values() const {
  Figure620Values v;
  rules::ReadFields(*this, kFigure620Fields, v);
  return v;
}

void Figure620::ShowValues(const Figure620Values& v) {
  rules::ShowFields(*this, kFigure620Fields, v);
}

void Figure620::Command1_Click() {
  if (!rules::CheckFields(app_.prompt, *this, kFigure620Fields)) return;
  const Figure620Values v = Values();
  if (const auto refusal = Figure620Refusal(v)) {
    app_.prompt.Show(*refusal);
    return;
  }
  AcceptPropertyValues(
      *this, app_, [&v](wb::Workbook& project) { SaveFigure620(project, v); }, true);
}

}  // namespace gustline
