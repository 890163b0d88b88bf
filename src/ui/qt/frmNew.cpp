#include "ui/frmNew.h"

#include <QEvent>

#include "ui/frmNewValues.h"
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
          [this](int index) { SelectIndex(index); });
  connect(ui_->List1, &QListWidget::itemDoubleClicked, this, [this] { Command1_Click(); });
  connect(ui_->Command1, &QPushButton::clicked, this, [this] { Command1_Click(); });
  connect(ui_->Command2, &QPushButton::clicked, this, &QDialog::reject);
  ui_->cobDescription->installEventFilter(this);
  SelectIndex(0);
}

frmNew::~frmNew() = default;

int frmNew::NewReportBox() {
  return exec() == QDialog::Accepted ? SelectedIndex() : -1;
}

int frmNew::SelectedIndex() const {
  return ui_->List1->currentRow();
}

void frmNew::SelectIndex(int index) {
  ui_->List1->setCurrentRow(index);
}

void frmNew::Command1_Click() {
  if (SelectedIndex() >= 0) accept();
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
