#include "ui/qt/frmWindProp.h"

#include <QButtonGroup>
#include <QEvent>
#include <QPointer>
#include <QRadioButton>
#include <QShowEvent>
#include <initializer_list>
#include <utility>

#include "core/Application.h"
#include "core/ApplicationView.h"
#include "core/FacilityErrorReport.h"
#include "core/ProcessState.h"
#include "core/Prompt.h"
#include "core/StatusSummary.h"
#include "core/workbook/model/NamedCells.h"
#include "core/workbook/value/FacilityError.h"
#include "ui/frmWindPropScreens.h"
#include "ui/frmWindPropStatus.h"
#include "ui/qt/MapFrm.h"
#include "ui/rules/FieldNumber.h"
#include "ui/rules/qt/FormFields.h"
#include "ui/rules/qt/PropertyDialog.h"
#include "ui_frmWindProp.h"

namespace gustline {
namespace {

constexpr int kEquationTab = 0;
constexpr int kDimensionsTab = 2;
constexpr int kGustTab = 3;
constexpr int kCoefficientsTab = 5;
constexpr int kInternalPressureTab = 6;

void Check(QButtonGroup* group, int id) {
  if (QAbstractButton* button = group->button(id)) {
    button->setChecked(true);
    return;
  }
  // No button stands for the value (a stored exposure A): none is checked.
  group->setExclusive(false);
  for (QAbstractButton* button : group->buttons()) button->setChecked(false);
  group->setExclusive(true);
}

int CheckedOr(const QButtonGroup* group, int fallback) {
  const int id = group->checkedId();
  return id >= 0 ? id : fallback;
}

std::string Text(const QLineEdit* edit) {
  return edit->text().toStdString();
}

}  // namespace

frmWindProp::frmWindProp(Application& app, QWidget* parent)
    : QDialog(parent), app_(app), ui_(std::make_unique<Ui::frmWindProp>()) {
  ui_->setupUi(this);
  system_ = rules::OptionGroup(*this, "Option1", 3);
  structure_ = rules::OptionGroup(*this, "Option2", 3);
  category_ = rules::OptionGroup(*this, "Option3", 4);
  exposure_ = rules::OptionGroup(*this, "Option4", 3);
  gust_ = rules::OptionGroup(*this, "Option5", 4);
  hill_ = rules::OptionGroup(*this, "Option6", 5);
  enclosure_ = rules::OptionGroup(*this, "Option7", 3);
  ri_ = rules::OptionGroup(*this, "Option8", 2);
  for (const std::string& item : TableItems()) ui_->List2->addItem(QString::fromStdString(item));
  SetFigureDialogs({});

  connect(ui_->Command7, &QPushButton::clicked, this, [this] { ShowMapFrm(this); });
  connect(system_, &QButtonGroup::idClicked, this, [this] { SystemOrStructureChanged(); });
  connect(structure_, &QButtonGroup::idClicked, this, [this] { SystemOrStructureChanged(); });
  connect(ui_->SSTab1, &QTabWidget::currentChanged, this, [this](int tab) { TabChanged(tab); });
  connect(enclosure_, &QButtonGroup::idToggled, this, [this] { UpdateRiFrame(); });
  connect(ri_, &QButtonGroup::idToggled, this, [this] { UpdateRiFrame(); });

  connect(ui_->Text1, &QLineEdit::textChanged, this, [this](const QString& text) {
    app_.view.SetStatusPanel(kHeightPanel, HeightPanelText(text.toStdString()));
  });
  connect(ui_->Text6, &QLineEdit::textChanged, this, [this](const QString& text) {
    app_.view.SetStatusPanel(kWindSpeedPanel, WindSpeedPanelText(text.toStdString()));
  });
  connect(exposure_, &QButtonGroup::idToggled, this, [this](int id, bool checked) {
    if (checked) app_.view.SetStatusPanel(kExposurePanel, ExposurePanelText(id + 1));
  });
  const auto categoryChanged = [this] {
    const int category = CategoryValue(CheckedOr(category_, 0), ui_->ChkHurricane->isChecked());
    app_.view.SetStatusPanel(kImportancePanel, ImportancePanelText(category));
  };
  connect(category_, &QButtonGroup::idToggled, this, categoryChanged);
  connect(ui_->ChkHurricane, &QCheckBox::toggled, this, categoryChanged);
  connect(ui_->Text7, &QLineEdit::textChanged, this, [this] { UpdateDensityLabels(); });

  connect(ui_->List1, &QListWidget::currentRowChanged, this, [this](int row) {
    if (row < 0) return;
    const int figure = FigureChoiceOf(ui_->List1->item(row)->text().toStdString(),
                                      CheckedOr(system_, held_.system))
                           .figure;
    if (figure > 0) held_.figure = figure;
  });
  connect(ui_->List2, &QListWidget::currentRowChanged, this, [this](int row) {
    if (row >= 0) held_.table = row + 1;
  });
  connect(ui_->List1, &QListWidget::itemDoubleClicked, this, [this] { Command10_Click(); });
  connect(ui_->Command10, &QPushButton::clicked, this, [this] { Command10_Click(); });
  connect(ui_->List2, &QListWidget::itemDoubleClicked, this, [this] { Command5_Click(); });
  connect(ui_->Command5, &QPushButton::clicked, this, [this] { Command5_Click(); });
  connect(ui_->Command8, &QPushButton::clicked, this, [this] {
    if (figureDialogs_.topography) figureDialogs_.topography(this);
  });
  connect(ui_->Command1, &QPushButton::clicked, this, [this] { Command1_Click(); });
  connect(ui_->Command2, &QPushButton::clicked, this, &frmWindProp::reject);
}

frmWindProp::~frmWindProp() = default;

WindProperties frmWindProp::Values() const {
  WindProperties v = held_;
  rules::ReadFields(*this, kWindPropertiesFields, v);
  return v;
}

void frmWindProp::ShowValues(const WindProperties& v) {
  held_ = v;
  rules::ShowFields(*this, kWindPropertiesFields, v);
}

void frmWindProp::SetFigureDialogs(FigureDialogs dialogs) {
  figureDialogs_ = std::move(dialogs);
  ui_->Command8->setEnabled(static_cast<bool>(figureDialogs_.topography));
}

void frmWindProp::UpdatePressureScreen() {
  const PressureScreen screen =
      PressureScreenFor(CheckedOr(system_, held_.system), CheckedOr(structure_, held_.structure),
                        rules::FieldValue(Text(ui_->Text1)));
  for (int i = 0; i < 3; ++i) {
    structure_->button(i)->setText(QString::fromStdString(screen.structureCaptions[i]));
  }
  ui_->Option2_2->setVisible(screen.thirdStructureVisible);
  if (screen.structure != structure_->checkedId()) Check(structure_, screen.structure);
  ui_->Label1->setText(QString::fromStdString(screen.equation));
  ui_->Label3->setText(QString::fromStdString(screen.figures));
  if (screen.warning) app_.prompt.Show(*screen.warning);
}

void frmWindProp::UpdateForceFactorScreen() {
  const int system = CheckedOr(system_, held_.system);
  const int structure = CheckedOr(structure_, held_.structure);
  const ForceFactorScreen screen = ForceFactorScreenFor(system, structure);
  const int figure = held_.figure;
  ui_->List1->clear();
  for (const std::string& item : screen.figureItems) {
    ui_->List1->addItem(QString::fromStdString(item));
  }
  ui_->List1->setCurrentRow(FigureListIndex(system, structure, figure));
  ui_->List1->setEnabled(screen.figuresEnabled);
  ui_->Command10->setEnabled(screen.figuresEnabled);
  // `Table` 0, nothing chosen yet, shows no selection.
  ui_->List2->setCurrentRow(held_.table - 1);
  for (QWidget* widget :
       std::initializer_list<QWidget*>{ui_->List2, ui_->Command5, ui_->Label12, ui_->Label17}) {
    widget->setEnabled(screen.tablesEnabled);
  }
}

void frmWindProp::UpdateGustScreen() {
  const GustScreen screen =
      GustScreenFor(CheckedOr(system_, held_.system), CheckedOr(structure_, held_.structure),
                    CheckedOr(gust_, held_.gustType));
  for (int i = 0; i < 4; ++i) gust_->button(i)->setEnabled(screen.enabled[i]);
  Check(gust_, screen.gustType);
}

void frmWindProp::UpdateDimScreen() {
  const bool editable = HeightEditable(held_.interval);
  ui_->Text1->setEnabled(editable);
  ui_->Label4->setEnabled(editable);
}

void frmWindProp::UpdateRiFrame() {
  const bool partiallyEnclosed = CheckedOr(enclosure_, held_.table64) == 1;
  ui_->Option8_0->setEnabled(partiallyEnclosed);
  ui_->Option8_1->setEnabled(partiallyEnclosed);
  const bool computed = partiallyEnclosed && ri_->checkedId() == 1;
  for (QWidget* widget :
       std::initializer_list<QWidget*>{ui_->TextAog, ui_->TextVi, ui_->Label13, ui_->Label14}) {
    widget->setEnabled(computed);
  }
}

void frmWindProp::UpdateDensityLabels() {
  const std::string msl = Text(ui_->Text7);
  ui_->Label20->setText(QString::fromStdString(AirDensityLabel(msl)));
  ui_->Label21->setText(QString::fromStdString(ConstantLabel(msl)));
}

void frmWindProp::UpdateStatus() {
  app_.view.SetStatusPanel(kHeightPanel, HeightPanelText(Text(ui_->Text1)));
  app_.view.SetStatusPanel(kWindSpeedPanel, WindSpeedPanelText(Text(ui_->Text6)));
  const WindProperties v = Values();
  app_.view.SetStatusPanel(kExposurePanel, ExposurePanelText(v.exposure));
  app_.view.SetStatusPanel(kImportancePanel,
                           ImportancePanelText(CategoryValue(v.categoryOption, v.hurricane)));
}

void frmWindProp::SystemOrStructureChanged() {
  UpdatePressureScreen();
  UpdateGustScreen();
  UpdateForceFactorScreen();
  UpdateDimScreen();
}

void frmWindProp::TabChanged(int tab) {
  switch (tab) {
    case kDimensionsTab:
      UpdateDimScreen();
      break;
    case kGustTab:
      UpdateDimScreen();
      UpdateGustScreen();
      break;
    case kCoefficientsTab:
      UpdateForceFactorScreen();
      break;
    case kInternalPressureTab:
      UpdateRiFrame();
      break;
    default:
      break;
  }
}

void frmWindProp::TabSelect(int tab) {
  if (tab < kEquationTab || tab >= ui_->SSTab1->count()) return;
  if (ui_->SSTab1->currentIndex() == tab) {
    TabChanged(tab);
  } else {
    ui_->SSTab1->setCurrentIndex(tab);
  }
}

void frmWindProp::showEvent(QShowEvent* event) {
  QDialog::showEvent(event);
  if (!event->spontaneous()) Form_Activate();
}

bool frmWindProp::event(QEvent* event) {
  if (event->type() == QEvent::WindowActivate && isVisible()) Form_Reactivate();
  return QDialog::event(event);
}

void frmWindProp::Form_Activate() {
  try {
    loaded_ = LoadWindProperties(app_.state.ProjectWorkbook());
    ShowValues(loaded_);
  } catch (const wb::FacilityError& error) {
    ReportFacilityError(app_.prompt, error);
  }
  UpdateScreens();
  heightAtActivation_ = Text(ui_->Text1);
}

void frmWindProp::Form_Reactivate() {
  try {
    const WindProperties project = LoadWindProperties(app_.state.ProjectWorkbook());
    // Unchanged, the screens stay as they are: their warnings come once.
    if (project == loaded_) return;
    ShowValues(MergeProjectChanges(Values(), loaded_, project));
    loaded_ = project;
  } catch (const wb::FacilityError& error) {
    ReportFacilityError(app_.prompt, error);
    return;
  }
  UpdateScreens();
}

void frmWindProp::UpdateScreens() {
  UpdatePressureScreen();
  UpdateGustScreen();
  UpdateForceFactorScreen();
  UpdateDimScreen();
  UpdateRiFrame();
  UpdateStatus();
  UpdateDensityLabels();
}

void frmWindProp::reject() {
  QDialog::reject();
  try {
    UpdateStatusSummary(app_.state.ProjectWorkbook(), app_.view);
  } catch (const wb::FacilityError& error) {
    ReportFacilityError(app_.prompt, error);
  }
}

void frmWindProp::Command1_Click() {
  const WindProperties v = Values();
  if (Text(ui_->Text1) != heightAtActivation_ && FigureDependsOnHeight(v.system, v.figure)) {
    app_.prompt.Show(NewHeightWarning());
  }
  const int tab = ui_->SSTab1->currentIndex();
  AcceptProperties(
      *this, app_, kWindPropertiesFields,
      [this, &v, tab](wb::Workbook& project) {
        // Low-rise buildings are left with the warning of Figure 6-10 when they are too tall.
        if (v.system == 0 && v.structure == 0) {
          const PressureScreen screen = PressureScreenFor(0, 0, rules::FieldValue(v.height));
          if (screen.warning) app_.prompt.Show(*screen.warning);
        }
        SaveWindProperties(project, v, tab);
      },
      reportOnLeave_);
}

void frmWindProp::ReloadCarriedValues() {
  wb::Workbook& project = app_.state.ProjectWorkbook();
  held_.table66RoofType = wb::ReadNamedNumber(project, "Table66RoofType");
  held_.note5Applies = wb::ReadNamedNumber(project, "Note5Applies");
}

void frmWindProp::Command10_Click() {
  const QListWidgetItem* item = ui_->List1->currentItem();
  if (item == nullptr) return;
  const FigureChoice choice =
      FigureChoiceOf(item->text().toStdString(), CheckedOr(system_, held_.system));
  if (choice.dialog == FigureDialog::None) return;
  if (const auto error = HeightRangeError(choice.heightRule, rules::FieldValue(Text(ui_->Text1)))) {
    app_.prompt.Show(*error);
    return;
  }
  try {
    if (choice.writesTable64) {
      wb::WriteNamedInt(app_.state.ProjectWorkbook(), "Table64",
                        CheckedOr(enclosure_, held_.table64));
    }
    const auto dialog = figureDialogs_.figures.find(choice.dialog);
    if (dialog != figureDialogs_.figures.end()) dialog->second(app_, choice.figure, this);
    ReloadCarriedValues();
  } catch (const wb::FacilityError& error) {
    ReportFacilityError(app_.prompt, error);
  }
}

void frmWindProp::Command5_Click() {
  const auto dialog = figureDialogs_.tables.find(TableDialogOf(ui_->List2->currentRow()));
  if (dialog == figureDialogs_.tables.end()) return;
  try {
    dialog->second(app_, this);
    ReloadCarriedValues();
  } catch (const wb::FacilityError& error) {
    ReportFacilityError(app_.prompt, error);
  }
}

frmWindProp& WindPropertiesForm(Application& app, QWidget* parent) {
  static QPointer<frmWindProp> form;
  static Application* owner = nullptr;
  if (form.isNull() || owner != &app) {
    delete form.data();
    form = new frmWindProp(app, parent);
    owner = &app;
  }
  return *form;
}

void ShowWindProperties(Application& app, int tab, const FigureDialogs& figureDialogs,
                        QWidget* parent) {
  UpdateStatusSummary(app.state.ProjectWorkbook(), app.view);
  frmWindProp& form = WindPropertiesForm(app, parent);
  form.SetFigureDialogs(figureDialogs);
  form.TabSelect(tab);
  form.show();
  form.raise();
  form.activateWindow();
}

}  // namespace gustline
