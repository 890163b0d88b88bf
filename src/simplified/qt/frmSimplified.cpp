#include "simplified/qt/frmSimplified.h"

#include <QButtonGroup>
#include <QEvent>
#include <QRadioButton>
#include <QScopeGuard>
#include <QShowEvent>
#include <QTimer>
#include <utility>

#include "core/Application.h"
#include "core/ApplicationView.h"
#include "core/FacilityErrorReport.h"
#include "core/ProcessState.h"
#include "core/Prompt.h"
#include "core/ReportHook.h"
#include "core/workbook/model/NamedCells.h"
#include "core/workbook/value/FacilityError.h"
#include "simplified/qt/WindAreasFrm.h"
#include "ui/frmWindPropStatus.h"
#include "ui/qt/MapFrm.h"
#include "ui/rules/qt/AngleSlider.h"
#include "ui/rules/qt/FormFields.h"
#include "ui/rules/qt/PropertyDialog.h"
#include "ui_frmSimplified.h"

namespace gustline {

frmSimplified::frmSimplified(Application& app, QWidget* parent)
    : QDialog(parent), app_(app), ui_(std::make_unique<Ui::frmSimplified>()) {
  ui_->setupUi(this);
  system_ = rules::OptionGroup(*this, "Option1", 2);
  category_ = rules::OptionGroup(*this, "Option3", 4);
  exposure_ = rules::OptionGroup(*this, "Option4", 3);
  for (QLineEdit* field : {ui_->Text1, ui_->Text2, ui_->Text6}) field->installEventFilter(this);
  SetHelp({}, {});

  connect(system_, &QButtonGroup::idClicked, this, [this](int id) { SystemChosen(id); });
  connect(category_, &QButtonGroup::idClicked, this, [this] { app_.state.modifiedFlag = true; });
  connect(exposure_, &QButtonGroup::idToggled, this, [this](int id, bool checked) {
    if (checked) app_.view.SetStatusPanel(kExposurePanel, ExposurePanelText(id + 1));
  });
  connect(ui_->Text1, &QLineEdit::textChanged, this, [this](const QString& text) {
    app_.view.SetStatusPanel(kWindSpeedPanel, WindSpeedPanelText(text.toStdString()));
  });
  rules::FollowAngle(*ui_->Text6, *ui_->Slider1);
  connect(ui_->Command1, &QPushButton::clicked, this, [this] { Command1_Click(); });
  connect(ui_->Command2, &QPushButton::clicked, this, &frmSimplified::reject);
  connect(ui_->Command3, &QPushButton::clicked, this, [this] { Command3_Click(); });
  connect(ui_->Command4, &QPushButton::clicked, this, [this] { Command4_Click(); });
  connect(ui_->Command7, &QPushButton::clicked, this, [this] { ShowMapFrm(this); });
  connect(ui_->Command5, &QPushButton::clicked, this, [this] {
    if (help_) help_();
  });
}

frmSimplified::~frmSimplified() = default;

void frmSimplified::SetTopography(std::function<void(QWidget*)> topography) {
  topography_ = std::move(topography);
  ui_->Command3->setEnabled(static_cast<bool>(topography_));
}

void frmSimplified::SetHelp(std::function<void()> help, std::function<void()> areasHelp) {
  help_ = std::move(help);
  areasHelp_ = std::move(areasHelp);
  ui_->Command5->setEnabled(static_cast<bool>(help_));
}

SimplifiedValues frmSimplified::Values() const {
  SimplifiedValues v;
  rules::ReadFields(*this, kSimplifiedFields, v);
  return v;
}

void frmSimplified::ShowValues(const SimplifiedValues& v) {
  rules::ShowFields(*this, kSimplifiedFields, v);
  ShowAreaControls(v.system);
}

void frmSimplified::ShowAreaControls(int system) {
  ui_->Command4->setVisible(system == 1);
  ui_->Label1->setVisible(system == 1);
}

void frmSimplified::SystemChosen(int system) {
  app_.state.modifiedFlag = true;
  ShowAreaControls(system);
}

void frmSimplified::Exec() {
  setWindowTitle(QStringLiteral("Simplified Procedure- Design Parameters"));
  exec();
}

void frmSimplified::showEvent(QShowEvent* event) {
  QDialog::showEvent(event);
  if (!event->spontaneous()) Form_Activate();
}

void frmSimplified::Form_Activate() {
  // A cancelled dialog keeps what was typed, but not into another project.
  if (cancelled_ && app_.state.currentFileName == cancelledProject_) return;
  cancelled_ = false;
  try {
    ShowValues(LoadSimplified(app_.state.ProjectWorkbook()));
  } catch (const wb::FacilityError& error) {
    ReportFacilityError(app_.prompt, error);
  }
}

void frmSimplified::Leave() {
  if (cancelled_) return;
  try {
    SaveSimplified(app_.state.ProjectWorkbook(), Values());
  } catch (const wb::FacilityError& error) {
    ReportFacilityError(app_.prompt, error);
  }
  if (!topographyOpen_) app_.report.CreateReport(app_);
}

void frmSimplified::Command1_Click() {
  try {
    if (const auto error = SimplifiedOkError(app_.state.ProjectWorkbook(), Values())) {
      app_.prompt.Show(*error);
      return;
    }
  } catch (const wb::FacilityError& error) {
    ReportFacilityError(app_.prompt, error);
    return;
  }
  const auto write = [this](wb::Workbook& project) { SaveSimplified(project, Values()); };
  if (AcceptProperties(*this, app_, kSimplifiedFields, write)) cancelled_ = false;
}

void frmSimplified::reject() {
  cancelled_ = true;
  cancelledProject_ = app_.state.currentFileName;
  QDialog::reject();
  app_.state.modifiedFlag = false;
  app_.view.SetStatusPanel(kHeightPanel, HeightPanelText(ui_->Text2->text().toStdString()));
}

void frmSimplified::Command3_Click() {
  if (!topography_) return;
  // The topography page writes the project's cells on leaving; the report waits for this
  // dialog, which reads the cells again when it comes back.
  {
    topographyOpen_ = true;
    const auto closed = qScopeGuard([this] { topographyOpen_ = false; });
    Leave();
    topography_(this);
  }
  Form_Activate();
}

void frmSimplified::Command4_Click() {
  Leave();
  WindAreasFrm areas(app_, this);
  areas.SetHelp(areasHelp_);
  areas.exec();
  Form_Activate();
  // The system chosen stands, whatever the areas dialog did.
  const int system = system_->checkedId();
  if (system < 0) return;
  try {
    wb::WriteNamedInt(app_.state.ProjectWorkbook(), "System", system);
  } catch (const wb::FacilityError& error) {
    ReportFacilityError(app_.prompt, error);
  }
}

bool frmSimplified::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::FocusIn) {
    if (auto* field = qobject_cast<QLineEdit*>(watched)) {
      // After the click that gave the focus, which would otherwise place the caret.
      QTimer::singleShot(0, field, &QLineEdit::selectAll);
    }
  }
  return QDialog::eventFilter(watched, event);
}

}  // namespace gustline
