#include "ui/qt/About.h"

#include <QCoreApplication>

#include "ui_About.h"

namespace gustline {

About::About(QWidget* parent) : QDialog(parent), ui_(std::make_unique<Ui::About>()) {
  ui_->setupUi(this);
  // The version is the one the program gives itself at start; without it the line stays out.
  const QString version = QCoreApplication::applicationVersion();
  ui_->lblVersion->setText(QStringLiteral("Version ") + version);
  ui_->lblVersion->setVisible(!version.isEmpty());
  connect(ui_->Command1, &QPushButton::clicked, this, &QDialog::accept);
}

About::~About() = default;

void ShowAbout(QWidget* parent) {
  About box(parent);
  box.exec();
}

}  // namespace gustline
