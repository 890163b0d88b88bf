#include "ui/qt/PageSetup.h"

#include <QEvent>
#include <QTimer>

#include "core/Application.h"
#include "core/ProcessState.h"
#include "ui/rules/qt/FormFields.h"
#include "ui_PageSetup.h"

namespace gustline {

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
  rules::ReadFields(*this, kPageSetupFields, v);
  return v;
}

void PageSetup::ShowValues(const PageSetupValues& v) {
  rules::ShowFields(*this, kPageSetupFields, v);
}

void PageSetup::Command1_Click() {
  if (!rules::CheckFields(app_.prompt, *this, kPageSetupFields)) return;
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

}  // namespace gustline
