#include "factors/qt/frmGustCalc.h"

#include <QComboBox>
#include <QLineEdit>
#include <QMenu>
#include <QShortcut>
#include <utility>

#include "core/Application.h"
#include "core/FacilityErrorReport.h"
#include "core/ProcessState.h"
#include "core/workbook/value/FacilityError.h"
#include "report/qt/ReportPrinting.h"
#include "report/qt/ReportView.h"
#include "ui/rules/CheckRule.h"
#include "ui/rules/qt/FormFields.h"
#include "ui_frmGustCalc.h"

namespace gustline {
namespace {

constexpr const char* kWholeBook = "A1:L70";

}  // namespace

frmGustCalc::frmGustCalc(Application& app, QWidget* parent)
    : QDialog(parent), app_(app), ui_(std::make_unique<Ui::frmGustCalc>()), gustCalc_("GustCalc") {
  ui_->setupUi(this);
  try {
    gustCalc_.ReadWorkbook(GustCalcPath(app_.state.applicationPath));
  } catch (const wb::FacilityError& error) {
    ReportFacilityError(app_.prompt, error);
  }
  view_ = new report::ReportView(gustCalc_, this);
  view_->hide();
  layout()->addWidget(view_);

  popup_ = new QMenu(this);
  popup_->addAction(QStringLiteral("&Copy"), this, [this] { gustCalc_.CopySelection(); });
  popup_->addAction(QStringLiteral("Select &All"), this, [this] { SelectAll(); });
  popup_->addAction(QStringLiteral("&Print..."), this, [this] { Command2_Click(); });
  popup_->addAction(QStringLiteral("Return to Calculator"), this, [this] { ReturnToCalculator(); });
  connect(view_, &report::ReportView::PopupRequested, this,
          [this](const QPoint& at) { popup_->popup(at); });
  for (const auto& [key, step] : {std::pair{Qt::Key_PageDown, 1}, std::pair{Qt::Key_PageUp, -1}}) {
    auto* turn = new QShortcut(QKeySequence(key), view_);
    connect(turn, &QShortcut::activated, this, [this, step = step] { view_->TurnPage(step); });
  }

  ShowValues(GustCalcValues{});
  for (const auto& field : kGustCalcFields) {
    auto* box = findChild<QLineEdit*>(
        QString::fromUtf8(field.control.data(), static_cast<int>(field.control.size())));
    if (box == nullptr) continue;
    connect(box, &QLineEdit::textChanged, this, [this] { Refresh(); });
    connect(box, &QLineEdit::editingFinished, this,
            [this, control = field.control] { CheckField(control); });
  }
  connect(ui_->Combo1, &QComboBox::currentIndexChanged, this, [this] { Refresh(); });
  connect(ui_->Command1, &QPushButton::clicked, this, [this] { Command1_Click(); });
  connect(ui_->Command2, &QPushButton::clicked, this, [this] { Command2_Click(); });
  connect(ui_->Command3, &QPushButton::clicked, this, &QDialog::hide);
  Refresh();
}

frmGustCalc::~frmGustCalc() = default;

GustCalcValues frmGustCalc::Values() const {
  GustCalcValues v;
  rules::ReadFields(*this, kGustCalcFields, v);
  return v;
}

void frmGustCalc::ShowValues(const GustCalcValues& v) {
  rules::ShowFields(*this, kGustCalcFields, v);
}

void frmGustCalc::Refresh() {
  try {
    WriteGustCalcInputs(gustCalc_, Values());
    ui_->Label1->setText(QString::fromStdString(GustCalcLabel(gustCalc_)));
  } catch (const wb::FacilityError& error) {
    ReportFacilityError(app_.prompt, error);
  }
  if (view_->isVisible()) view_->Refresh();
}

bool frmGustCalc::CheckField(std::string_view control) {
  for (const auto& field : kGustCalcFields) {
    if (field.control != control || field.rule.empty()) continue;
    auto* box =
        findChild<QLineEdit*>(QString::fromUtf8(control.data(), static_cast<int>(control.size())));
    if (rules::CheckRule(app_.prompt, field.rule, box->text().toStdString())) return true;
    box->setFocus();
    box->selectAll();
    return false;
  }
  return true;
}

void frmGustCalc::Command1_Click() {
  gustCalc_.SetActiveSheet(1);
  ui_->picInput->hide();
  view_->show();
  view_->Refresh();
}

void frmGustCalc::Command2_Click() {
  try {
    report::PrintReport(gustCalc_, this);
  } catch (const wb::FacilityError& error) {
    ReportFacilityError(app_.prompt, error);
  }
}

void frmGustCalc::ReturnToCalculator() {
  view_->hide();
  ui_->picInput->show();
  Refresh();
}

void frmGustCalc::SelectAll() {
  gustCalc_.SetSelection(kWholeBook);
  view_->Refresh();
}

frmGustCalc& ShowGustCalc(QWidget* parent, Application& app) {
  auto* calculator = parent->findChild<frmGustCalc*>(QString(), Qt::FindDirectChildrenOnly);
  if (calculator == nullptr) calculator = new frmGustCalc(app, parent);
  calculator->show();
  calculator->raise();
  return *calculator;
}

}  // namespace gustline
