#include "ui/PageSetup.h"

#include <QEvent>
#include <QTimer>

#include "core/Application.h"
#include "core/FacilityErrorReport.h"
#include "core/ProcessState.h"
#include "core/StatusSummary.h"
#include "core/workbook/FacilityError.h"
#include "ui/rules/qt/LineEditField.h"
#include "ui_PageSetup.h"

namespace gustline {
namespace {

std::string Text(const QLineEdit* field) {
  return field->text().toStdString();
}

void SetText(QLineEdit* field, const std::string& text) {
  field->setText(QString::fromStdString(text));
}

}  // namespace

PageSetup::PageSetup(Application& app, bool printerLandscape, QWidget* parent)
    : QDialog(parent),
      app_(app),
      printerLandscape_(printerLandscape),
      ui_(std::make_unique<Ui::PageSetup>()) {
  ui_->setupUi(this);
  for (QLineEdit* field :
       {ui_->Text3, ui_->Text4, ui_->Text5, ui_->Text6, ui_->Text7, ui_->Text8, ui_->Text9}) {
    field->installEventFilter(this);
  }
  connect(ui_->Command1, &QPushButton::clicked, this, [this] { Command1_Click(); });
  connect(ui_->Command2, &QPushButton::clicked, this, &QDialog::reject);
  ShowValues(LoadPageSetup(app_.state.ReportWorkbook()));
}

PageSetup::~PageSetup() = default;

PageSetupValues PageSetup::Values() const {
  PageSetupValues v;
  v.header = Text(ui_->Text1);
  v.footer = Text(ui_->Text2);
  v.topMargin = Text(ui_->Text3);
  v.bottomMargin = Text(ui_->Text4);
  v.leftMargin = Text(ui_->Text5);
  v.rightMargin = Text(ui_->Text6);
  v.fitToPages = ui_->Option1_1->isChecked();
  v.scale = Text(ui_->Text9);
  v.pagesWide = Text(ui_->Text7);
  v.pagesTall = Text(ui_->Text8);
  v.centerHorizontal = ui_->Check1_0->isChecked();
  v.centerVertical = ui_->Check1_1->isChecked();
  v.gridLines = ui_->Check1_2->isChecked();
  v.blackAndWhite = ui_->Check1_3->isChecked();
  return v;
}

void PageSetup::ShowValues(const PageSetupValues& v) {
  SetText(ui_->Text1, v.header);
  SetText(ui_->Text2, v.footer);
  SetText(ui_->Text3, v.topMargin);
  SetText(ui_->Text4, v.bottomMargin);
  SetText(ui_->Text5, v.leftMargin);
  SetText(ui_->Text6, v.rightMargin);
  (v.fitToPages ? ui_->Option1_1 : ui_->Option1_0)->setChecked(true);
  SetText(ui_->Text9, v.scale);
  SetText(ui_->Text7, v.pagesWide);
  SetText(ui_->Text8, v.pagesTall);
  ui_->Check1_0->setChecked(v.centerHorizontal);
  ui_->Check1_1->setChecked(v.centerVertical);
  ui_->Check1_2->setChecked(v.gridLines);
  ui_->Check1_3->setChecked(v.blackAndWhite);
}

void PageSetup::Command1_Click() {
  if (!rules::CheckLineEdits(app_.prompt, {ui_->Text9, ui_->Text8, ui_->Text7, ui_->Text3,
                                           ui_->Text4, ui_->Text5, ui_->Text6})) {
    return;
  }
  SavePageSetup(app_.state.pageSetup, app_.state.ReportWorkbook(), Values(), printerLandscape_);
  accept();
}

bool PageSetup::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::FocusIn) {
    if (auto* field = qobject_cast<QLineEdit*>(watched)) {
      // After the click that gave the focus, which would otherwise place the caret.
      QTimer::singleShot(0, field, &QLineEdit::selectAll);
    }
  }
  return QDialog::eventFilter(watched, event);
}

bool ShowPageSetup(QWidget* parent, Application& app, bool printerLandscape) {
  try {
    UpdateStatusSummary(app.state.ProjectWorkbook(), app.view);
    PageSetup dialog(app, printerLandscape, parent);
    return dialog.exec() == QDialog::Accepted;
  } catch (const wb::FacilityError& error) {
    ReportFacilityError(app.prompt, error);
    return false;
  }
}

}  // namespace gustline
