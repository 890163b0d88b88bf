#include "buildings/qt/Fig616.h"

#include "core/Application.h"
#include "core/ProcessState.h"
#include "ui/rules/qt/PropertyDialog.h"
#include "ui_Fig616.h"

namespace gustline {

Fig616::Fig616(Application& app, QWidget* parent)
    : QDialog(parent), app_(app), ui_(std::make_unique<Ui::Fig616>()) {
  ui_->setupUi(this);
  connect(ui_->Command1, &QPushButton::clicked, this, [this] { Command1_Click(); });
  connect(ui_->Command2, &QPushButton::clicked, this, &QDialog::reject);
  ShowValues(LoadFig616(app_.state.ProjectWorkbook()));
}

Fig616::~Fig616() = default;

Fig616Values Fig616::Values() const {
  Fig616Values v;
  rules::ReadFields(*this, kFig616Fields, v);
  return v;
}

void Fig616::ShowValues(const Fig616Values& v) {
  rules::ShowFields(*this, kFig616Fields, v);
}

void Fig616::Command1_Click() {
  if (!rules::CheckFields(app_.prompt, *this, kFig616Fields)) return;
  const Fig616Values v = Values();
  if (const auto refusal = Fig616Refusal(v)) {
    app_.prompt.Show(*refusal);
    return;
  }
  AcceptPropertyValues(
      *this, app_, [&v](wb::Workbook& project) { SaveFig616(project, v); }, true);
}

}  // namespace gustline
