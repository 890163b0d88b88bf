#include "ui/qt/frmNew.h"

#include <QEvent>

#include "ui/rules/qt/FormFields.h"
#include "ui_frmNew.h"

namespace gustline {

frmNew::frmNew(QWidget* parent) : QDialog(parent), ui_(std::make_unique<Ui::frmNew>()) {
  ui_->setupUi(this);
  for (const NewProjectRow& row : NewProjectRows()) {
    ui_->List1->addItem(QString::fromStdString(row.listText));
    ui_->cobDescription->addItem(QString::fromStdString(row.description));
  }
  connect(ui_->List1, &QListWidget::currentRowChanged, ui_->cobDescription,
          &QComboBox::setCurrentIndex);
  connect(ui_->cobDescription, &QComboBox::currentIndexChanged, this,
          [this](int index) { ShowValues({index}); });
  connect(ui_->List1, &QListWidget::itemDoubleClicked, this, [this] { Command1_Click(); });
  connect(ui_->Command1, &QPushButton::clicked, this, [this] { Command1_Click(); });
  connect(ui_->Command2, &QPushButton::clicked, this, &QDialog::reject);
  ui_->cobDescription->installEventFilter(this);
  ShowValues({});
}

frmNew::~frmNew() = default;

int frmNew::NewReportBox() {
  return exec() == QDialog::Accepted ? Values().row : -1;
}

NewProjectChoice frmNew::Values() const {
  NewProjectChoice v;
  rules::ReadFields(*this, kNewProjectFields, v);
  return v;
}

void frmNew::ShowValues(const NewProjectChoice& v) {
  rules::ShowFields(*this, kNewProjectFields, v);
}

void frmNew::Command1_Click() {
  if (Values().row >= 0) accept();
}

bool frmNew::eventFilter(QObject* watched, QEvent* event) {
  if (watched == ui_->cobDescription && event->type() == QEvent::KeyPress) return true;
  return QDialog::eventFilter(watched, event);
}

std::optional<std::string> ChooseNewProject(QWidget* parent) {
  frmNew form(parent);
  const int index = form.NewReportBox();
  if (index < 0) return std::nullopt;
  return NewProjectRows()[static_cast<std::size_t>(index)].key;
}

}  // namespace gustline
