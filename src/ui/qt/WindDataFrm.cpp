#include "ui/qt/WindDataFrm.h"

#include <QComboBox>

#include "core/Application.h"
#include "core/ProcessState.h"
#include "report/qt/ReportView.h"
#include "ui/WindDataSections.h"
#include "ui_WindDataFrm.h"

namespace gustline {

WindDataFrm::WindDataFrm(Application& app, QWidget* parent)
    : QDialog(parent), app_(app), ui_(std::make_unique<Ui::WindDataFrm>()) {
  ui_->setupUi(this);
  for (const std::string_view caption : kWindDataSections)
    ui_->Combo1->addItem(QString::fromUtf8(caption.data(), static_cast<int>(caption.size())));
  view_ = new report::ReportView(app_.state.ProjectWorkbook(), this);
  view_->setObjectName(QStringLiteral("WindData"));
  layout()->addWidget(view_);
  SetInspectorPrintArea(app_.state.ProjectWorkbook());
  connect(ui_->Combo1, &QComboBox::textActivated, this,
          [this](const QString& caption) { Combo1_Click(caption); });
}

WindDataFrm::~WindDataFrm() = default;

void WindDataFrm::Combo1_Click(const QString& caption) {
  if (GoToSection(app_.state.ProjectWorkbook(), caption.toStdString())) view_->Refresh();
}

WindDataFrm& ShowWindDataFrm(QWidget* parent, Application& app) {
  auto* inspector = parent->findChild<WindDataFrm*>(QString(), Qt::FindDirectChildrenOnly);
  if (inspector == nullptr) inspector = new WindDataFrm(app, parent);
  inspector->View().Refresh();
  inspector->show();
  inspector->raise();
  return *inspector;
}

}  // namespace gustline
