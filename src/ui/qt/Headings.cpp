#include "ui/Headings.h"

#include <QEvent>
#include <QTimer>

#include "core/Application.h"
#include "core/FacilityErrorReport.h"
#include "core/ProcessState.h"
#include "core/Prompt.h"
#include "core/ReportHook.h"
#include "core/StatusSummary.h"
#include "core/workbook/FacilityError.h"
#include "ui_Headings.h"

namespace gustline {
namespace {

std::string Text(const QLineEdit* field) {
  return field->text().toStdString();
}

void SetText(QLineEdit* field, const std::string& text) {
  field->setText(QString::fromStdString(text));
}

}  // namespace

Headings::Headings(Application& app, QWidget* parent)
    : QDialog(parent), app_(app), ui_(std::make_unique<Ui::Headings>()) {
  ui_->setupUi(this);
  for (QLineEdit* field :
       {ui_->Text1_0, ui_->Text1_1, ui_->Text1_2, ui_->Text1_3, ui_->Text1_4, ui_->Text1_5}) {
    connect(field, &QLineEdit::textEdited, this, &Headings::Text1_Change);
    field->installEventFilter(this);
  }
  ui_->Text2->installEventFilter(this);
  connect(ui_->Command1, &QPushButton::clicked, this, [this] { Command1_Click(); });
  connect(ui_->Command2, &QPushButton::clicked, this, &QDialog::reject);
  ShowValues(LoadHeadings(app_.state.ProjectWorkbook()));
}

Headings::~Headings() = default;

HeadingsValues Headings::Values() const {
  HeadingsValues v;
  v.company = Text(ui_->Text1_0);
  v.project = Text(ui_->Text1_1);
  v.location = Text(ui_->Text1_2);
  v.subject = Text(ui_->Text1_3);
  v.fileNo = Text(ui_->Text1_4);
  v.engineer = Text(ui_->Text1_5);
  v.date = Text(ui_->Text2);
  return v;
}

void Headings::ShowValues(const HeadingsValues& v) {
  SetText(ui_->Text1_0, v.company);
  SetText(ui_->Text1_1, v.project);
  SetText(ui_->Text1_2, v.location);
  SetText(ui_->Text1_3, v.subject);
  SetText(ui_->Text1_4, v.fileNo);
  SetText(ui_->Text1_5, v.engineer);
  SetText(ui_->Text2, v.date);
}

void Headings::Text1_Change(const QString& text) {
  if (text.isEmpty()) app_.prompt.Show(ZeroLengthHeadingMessage());
}

void Headings::Command1_Click() {
  SaveHeadings(app_.state.ProjectWorkbook(), Values());
  app_.state.modifiedFlag = true;
  accept();
  app_.report.CreateReport(app_);
}

bool Headings::eventFilter(QObject* watched, QEvent* event) {
  auto* field = qobject_cast<QLineEdit*>(watched);
  if (field && event->type() == QEvent::FocusIn) {
    // After the click that gave the focus, which would otherwise place the caret.
    QTimer::singleShot(0, field, &QLineEdit::selectAll);
  } else if (field == ui_->Text2 && event->type() == QEvent::FocusOut) {
    SetText(ui_->Text2, NormalizeDate(Text(ui_->Text2)));
  }
  return QDialog::eventFilter(watched, event);
}

bool ShowHeadings(QWidget* parent, Application& app) {
  try {
    UpdateStatusSummary(app.state.ProjectWorkbook(), app.view);
    Headings dialog(app, parent);
    return dialog.exec() == QDialog::Accepted;
  } catch (const wb::FacilityError& error) {
    ReportFacilityError(app.prompt, error);
    return false;
  }
}

}  // namespace gustline
