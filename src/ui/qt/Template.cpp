#include "ui/Template.h"

#include "core/Application.h"
#include "core/FacilityErrorReport.h"
#include "core/FileTemplate.h"
#include "core/ProcessState.h"
#include "core/StatusSummary.h"
#include "core/workbook/FacilityError.h"
#include "ui_Template.h"

namespace gustline {

Template::Template(Application& app, QWidget* parent)
    : QDialog(parent), app_(app), ui_(std::make_unique<Ui::Template>()) {
  ui_->setupUi(this);
  connect(ui_->Command1, &QPushButton::clicked, this, [this] { Command1_Click(); });
  connect(ui_->Command4, &QPushButton::clicked, this, [this] { Command4_Click(); });
  connect(ui_->Command2, &QPushButton::clicked, this, &QDialog::reject);
  SetFieldText(QString::fromStdString(ActiveTemplateFieldText(app_)));
}

Template::~Template() = default;

QString Template::FieldText() const {
  return ui_->Text1->text();
}

void Template::SetFieldText(const QString& text) {
  ui_->Text1->setText(text);
}

void Template::Command1_Click() {
  if (const auto path = BrowseTemplate(app_)) SetFieldText(QString::fromStdString(*path));
}

void Template::Command4_Click() {
  if (AcceptTemplateName(app_, FieldText().toStdString())) accept();
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
