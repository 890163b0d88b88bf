#include "ui/qt/Headings.h"

#include <QEvent>
#include <QTimer>

#include "core/Application.h"
#include "core/ProcessState.h"
#include "core/Prompt.h"
#include "ui/rules/qt/FieldDisplay.h"
#include "ui/rules/qt/PropertyDialog.h"
#include "ui_Headings.h"

namespace gustline {

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
  rules::ReadFields(*this, kHeadingsFields, v);
  return v;
}

void Headings::ShowValues(const HeadingsValues& v) {
  rules::ShowFields(*this, kHeadingsFields, v);
  rules::FitTextBoxes(*this);
}

void Headings::Text1_Change(const QString& text) {
  if (text.isEmpty()) app_.prompt.Show(ZeroLengthHeadingMessage());
}

void Headings::Command1_Click() {
  AcceptProperties(*this, app_, kHeadingsFields,
                   [this](wb::Workbook& project) { SaveHeadings(project, Values()); });
}

bool Headings::eventFilter(QObject* watched, QEvent* event) {
  auto* field = qobject_cast<QLineEdit*>(watched);
  if (field == nullptr) return QDialog::eventFilter(watched, event);
  if (event->type() == QEvent::FocusIn) {
    // After the click that gave the focus, which would otherwise place the caret.
    QTimer::singleShot(0, field, &QLineEdit::selectAll);
  } else if (field == ui_->Text2 && event->type() == QEvent::FocusOut) {
    ui_->Text2->setText(QString::fromStdString(NormalizeDate(ui_->Text2->text().toStdString())));
  }
  return QDialog::eventFilter(watched, event);
}

}  // namespace gustline
