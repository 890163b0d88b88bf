#include "ui/qt/Template.h"

#include "core/Application.h"
#include "core/FacilityErrorReport.h"
#include "core/FileTemplate.h"
#include "core/ProcessState.h"
#include "core/StatusSummary.h"
#include "core/workbook/value/FacilityError.h"
#include "ui/rules/qt/FieldDisplay.h"
#include "ui/rules/qt/FormFields.h"
#include "ui_Template.h"

namespace gustline {

Template::Template(Application& app, QWidget* parent)
    : QDialog(parent), app_(app), ui_(std::make_unique<Ui::Template>()) {
  ui_->setupUi(this);
  connect(ui_->Command1, &QPushButton::clicked, this, [this] { Command1_Click(); });
  connect(ui_->Command4, &QPushButton::clicked, this, [this] { Command4_Click(); });
  connect(ui_->Command2, &QPushButton::clicked, this, &QDialog::reject);
  ShowValues({ActiveTemplateFieldText(app_)});
}

Template::~Template() = default;

TemplateChoice Template::Values() const {
  TemplateChoice v;
  rules::ReadFields(*this, kTemplateFields, v);
  return v;
}

void Template::ShowValues(const TemplateChoice& v) {
  rules::ShowFields(*this, kTemplateFields, v);
  rules::FitTextBoxes(*this);
}

void Template::Command1_Click() {
  if (const auto path = BrowseTemplate(app_)) ShowValues({*path});
}

void Template::Command4_Click() {
  if (AcceptTemplateName(app_, Values().name)) accept();
}

bool ShowTemplate(QWidget* parent, Application& app) {
  try {
    UpdateStatusSummary(app.state.ProjectWorkbook(), app.view);
  } catch (const wb::FacilityError& error) {
    ReportFacilityError(app.prompt, error);
  }
  Template dialog(app, parent);
  return dialog.exec() == QDialog::Accepted;
}

}  // namespace gustline
