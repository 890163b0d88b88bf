#include "geometry/qt/Geometry.h"

#include <QMenu>

#include "core/Application.h"
#include "core/FacilityErrorReport.h"
#include "core/ProcessState.h"
#include "core/Prompt.h"
#include "core/workbook/model/NamedCells.h"
#include "core/workbook/value/FacilityError.h"
#include "core/workbook/value/NumberFormat.h"
#include "geometry/DxfReader.h"
#include "geometry/HeightList.h"
#include "geometry/IntervalAreas.h"
#include "geometry/ReadColumn.h"
#include "geometry/qt/frmViewChart.h"
#include "ui/rules/qt/PropertyDialog.h"
#include "ui_Geometry.h"

namespace gustline::geometry {
namespace {

constexpr int kOutlineRows = 16384;

}  // namespace

Geometry::Geometry(Application& app, QWidget* parent)
    : QDialog(parent), app_(app), ui_(std::make_unique<Ui::Geometry>()) {
  ui_->setupUi(this);
  SetUpIntervalGrid(intervalGrid_);
  ui_->F1Book1->Attach(intervalGrid_, app_.prompt,
                       {QStringLiteral("From\n[ ft ]"), QStringLiteral("To\n[ ft ]"),
                        QStringLiteral("Length\n[ ft ]")},
                       kIntervalRows, {3});
  ui_->F1Book2->Attach(outlineGrid_, app_.prompt,
                       {QStringLiteral("X-Coord.\n[ ft ]"), QStringLiteral("Y-Coord.\n[ ft ]")},
                       kOutlineRows, {1, 2});

  const auto modes = ModeOptions();
  for (int i = 0; i < 6; ++i)
    connect(modes[i], &QRadioButton::clicked, this, [this, i] { Option1_Click(i); });
  connect(ui_->Option2_0, &QRadioButton::clicked, this, [this] { Option2_Click(0); });
  connect(ui_->Option2_1, &QRadioButton::clicked, this, [this] { Option2_Click(1); });
  connect(ui_->Check1, &QCheckBox::toggled, this,
          [this](bool ticked) { app_.state.ignoreAreaCalculation = ticked; });
  connect(ui_->Command1, &QPushButton::clicked, this, [this] { Command1_Click(); });
  connect(ui_->Command2, &QPushButton::clicked, this, [this] { Command2_Click(); });
  connect(ui_->Command3, &QPushButton::clicked, this, [this] {
    if (help_) help_();
  });
  connect(ui_->Command4, &QPushButton::clicked, this, [this] { Command4_Click(); });
  connect(ui_->Command5, &QPushButton::clicked, this, [this] { Command5_Click(); });
  connect(ui_->Command6, &QPushButton::clicked, this, [this] { Command6_Click(); });

  // Intervals cannot have holes: a From cell below the first empty row sends the user back.
  connect(ui_->F1Book1, &grid::SheetGrid::CellClicked, this, [this](int row, int col) {
    if (col != 1) return;
    const int empty = ui_->F1Book1->Editor().FirstEmptyRow(1, kIntervalRows);
    if (empty > 0 && row > empty) ui_->F1Book1->SetCurrentCell(empty, 1);
  });
  connect(ui_->F1Book1, &grid::SheetGrid::EditMenuRequested, this,
          [this](int row, int col, const QPoint& at) {
            if (row > 0) ui_->F1Book1->SetCurrentCell(row, col);
            ShowEditMenu(1, at);
          });
  connect(ui_->F1Book2, &grid::SheetGrid::EditMenuRequested, this,
          [this](int, int, const QPoint& at) { ShowEditMenu(2, at); });
}

Geometry::~Geometry() = default;

frmViewChart& Geometry::Viewer() {
  if (!viewer_) viewer_ = std::make_unique<frmViewChart>(app_.prompt, this);
  return *viewer_;
}

void Geometry::SetIntervalListDialogs(std::map<IntervalListDialog, std::function<void()>> dialogs) {
  intervalListDialogs_ = std::move(dialogs);
}

void Geometry::SetHelp(std::function<void()> help) {
  help_ = std::move(help);
}

void Geometry::Display(int tab) {
  dirty_ = false;
  wb::Workbook& project = app_.state.ProjectWorkbook();
  values_ = LoadGeometry(project);
  openedMode_ = values_.interval;
  if (values_.interval >= 0 && values_.interval < 6)
    ModeOptions()[static_cast<std::size_t>(values_.interval)]->setChecked(true);
  (values_.order == 1 ? ui_->Option2_1 : ui_->Option2_0)->setChecked(true);
  CopySheetCells(project, kProjectOutlineSheet, outlineGrid_, 1);
  LoadIntervalGrid(intervalGrid_, wb::ReadNamedText(project, "UserIntervals"));
  ui_->Check1->setChecked(app_.state.ignoreAreaCalculation);
  ui_->SStab1->setCurrentIndex(tab == kCoordinatesTab ? kCoordinatesTab : kIntervalsTab);
  ShowMode();
  ui_->F1Book1->Refresh();
  ui_->F1Book2->Refresh();
  dirty_ = false;
  dirtyAtShow_ = dirty_;
}

int Geometry::Exec(int tab) {
  int result = QDialog::Rejected;
  ExecProperties(app_, [&] {
    Display(tab);
    result = exec();
    return result;
  });
  return result;
}

std::array<QRadioButton*, 6> Geometry::ModeOptions() const {
  return {ui_->Option1_0, ui_->Option1_1, ui_->Option1_2,
          ui_->Option1_3, ui_->Option1_4, ui_->Option1_5};
}

void Geometry::ShowMode() {
  const bool userDefined = values_.interval == 5;
  ui_->F1Book1->setEnabled(userDefined);
  ui_->Label1->setEnabled(userDefined);
  // The dark gray and the white of the old 16-colour palette.
  QPalette palette = ui_->F1Book1->palette();
  palette.setColor(QPalette::Base, userDefined ? QColor(255, 255, 255) : QColor(128, 128, 128));
  ui_->F1Book1->setPalette(palette);
}

void Geometry::Option1_Click(int mode) {
  values_.interval = mode;
  dirty_ = true;
  ShowMode();
  if (mode < 5) {
    ChangingIntervalPrompt();
    CheckHeightInterval();
  }
}

void Geometry::Option2_Click(int order) {
  values_.order = order;
  dirty_ = true;
}

void Geometry::Command1_Click() {
  if (values_.interval == 5 && !CheckSumOfLengths(app_.prompt, SumOfLengths(intervalGrid_))) return;
  try {
    ApplyGeometry(app_.state.ProjectWorkbook(), values_, intervalGrid_, outlineGrid_);
  } catch (const wb::FacilityError& error) {
    ReportFacilityError(app_.prompt, error);
  }
  if (values_.interval == 5) ChangingIntervalPrompt();
  AcceptPropertyValues(
      *this, app_,
      [](wb::Workbook& project) { wb::WriteNamedInt(project, "OKPressedOnGeometryForm", 1); },
      true);
}

void Geometry::Command2_Click() {
  CancelIntervalGrid(intervalGrid_, wb::ReadNamedInt(app_.state.ProjectWorkbook(),
                                                     "OKPressedOnGeometryForm") == 1);
  dirty_ = false;
  reject();
}

void Geometry::Command4_Click() {
  if (!ReadDXF(app_.prompt, outlineGrid_)) return;
  ui_->F1Book2->Refresh();
  Command6_Click();
  dirty_ = dirtyAtShow_;
}

void Geometry::Command5_Click() {
  std::vector<double> cuts;
  try {
    const double height = values_.interval == 5
                              ? SumOfLengths(intervalGrid_)
                              : wb::ReadNamedNumber(app_.state.ProjectWorkbook(), "Height");
    intervalGrid_.SetSelection("C1:C100");
    const std::string lengths = UserIntervalsFromRows(intervalGrid_.ClipText());
    for (const HeightInterval& interval : BuildIntervalTable(height, values_.interval, lengths)) {
      if (cuts.empty()) cuts.push_back(interval.low);
      cuts.push_back(interval.high);
    }
  } catch (const wb::FacilityError&) {
    cuts.clear();  // a height beyond the ladder: the outline alone
  }
  if (!Viewer().ViewGeometry(outlineGrid_, std::move(cuts))) return;
  Viewer().show();
  Viewer().raise();
}

void Geometry::Command6_Click() {
  const std::vector<double> x = ReadColumn(outlineGrid_, 1, 1);
  const std::vector<double> y = ReadColumn(outlineGrid_, 1, 2);
  const float area = GetTotalArea(x, y, app_.prompt);
  ui_->Label2->setText(QString::fromStdString(wb::FormatNumber(area, "#,##0.00") + " sq. ft."));
}

void Geometry::CheckHeightInterval() {
  const double height = wb::ReadNamedNumber(app_.state.ProjectWorkbook(), "Height");
  if (const auto warning = HeightIntervalWarning(height, values_.interval))
    app_.prompt.Show(*warning);
}

void Geometry::ChangingIntervalPrompt() {
  wb::Workbook& project = app_.state.ProjectWorkbook();
  const auto question = ChangingIntervalQuestion(wb::ReadNamedInt(project, "Table"),
                                                 wb::ReadNamedInt(project, "Structure"),
                                                 values_.interval, openedMode_);
  if (!question || app_.prompt.Show(question->message) != PromptAnswer::Yes) return;
  // The chimney dialog builds its rows from the stored mode.
  if (question->dialog == IntervalListDialog::Figure619)
    wb::WriteNamedInt(project, "Interval", values_.interval);
  const auto dialog = intervalListDialogs_.find(question->dialog);
  if (dialog != intervalListDialogs_.end()) dialog->second();
}

void Geometry::ShowEditMenu(int grid, const QPoint& globalPos) {
  grid::SheetGrid* const target = grid == 1 ? ui_->F1Book1 : ui_->F1Book2;
  QMenu menu(this);
  menu.setObjectName(QStringLiteral("mnuEdit"));
  const auto add = [&](const char* name, const QString& caption, void (grid::SheetGrid::*run)()) {
    QAction* action = menu.addAction(caption);
    action->setObjectName(QString::fromLatin1(name));
    connect(action, &QAction::triggered, target, run);
  };
  add("mnuCut", QStringLiteral("Cu&t"), &grid::SheetGrid::CutCells);
  add("mnuCopy", QStringLiteral("&Copy"), &grid::SheetGrid::CopyCells);
  add("mnuPaste", QStringLiteral("&Paste"), &grid::SheetGrid::PasteCells);
  add("mnuClear", QStringLiteral("Cl&ear"), &grid::SheetGrid::ClearCells);
  add("mnuCopyDown", QStringLiteral("Copy &Down"), &grid::SheetGrid::CopyCellsDown);
  menu.exec(globalPos);
}

}  // namespace gustline::geometry
