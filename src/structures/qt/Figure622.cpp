#include "structures/qt/Figure622.h"

#include <QButtonGroup>

#include "core/Application.h"
#include "core/ProcessState.h"
#include "structures/IntervalValues.h"
#include "structures/qt/IntervalGrid.h"
#include "ui/rules/qt/PropertyDialog.h"
#include "ui_Figure622.h"

namespace gustline {
namespace {

constexpr int kRatioCol = 3;

}  // namespace

Figure622::Figure622(Application& app, QWidget* parent)
    : QDialog(parent), app_(app), ui_(std::make_unique<Ui::Figure622>()) {
  ui_->setupUi(this);
  QButtonGroup* cross = rules::OptionGroup(*this, "CrossOption", 2);
  connect(cross, &QButtonGroup::idToggled, this, [this](int id, bool checked) {
    if (checked) ShowCrossSection(id);
  });
  rules::OptionGroup(*this, "DirectionOption", 2);
  rules::OptionGroup(*this, "ShapeOption", 2);
  connect(ui_->Command1, &QPushButton::clicked, this, [this] { Command1_Click(); });
  connect(ui_->Command2, &QPushButton::clicked, this, &QDialog::reject);
  const Figure622Values v = LoadFigure622(app_.state.ProjectWorkbook());
  ShowValues(v);
  const std::string lists[] = {v.ratios};
  rows_ = ShowIntervalGrid(*ui_->F1Tower, grid_, app_.state.ProjectWorkbook(), app_.prompt,
                           {QStringLiteral("Ratio e\n( As / Ag )")}, lists);
}

// The grid goes first: the book it shows is a member, gone before the dialog's children.
Figure622::~Figure622() {
  delete ui_->F1Tower;
}

Figure622Values Figure622::Values() {
  Figure622Values v = loaded_;
  rules::ReadFields(*this, kFigure622Fields, v);
  v.ratios = IntervalGridList(grid_, kRatioCol, rows_, false);
  return v;
}

void Figure622::ShowValues(const Figure622Values& v) {
  loaded_ = v;
  rules::ShowFields(*this, kFigure622Fields, v);
  ShowCrossSection(v.crossSection);
}

void Figure622::ShowCrossSection(int crossSection) {
  const bool enabled = WindDirectionEnabled(crossSection);
  // The frame's two options go grey with it.
  ui_->WindDirectionFrame->setEnabled(enabled);
}

void Figure622::Command1_Click() {
  constexpr int kCols[] = {kRatioCol};
  if (!CheckIntervalGrid(*ui_->F1Tower, app_.prompt, kCols, rows_, false)) return;
  const Figure622Values v = Values();
  AcceptPropertyValues(
      *this, app_, [&v](wb::Workbook& project) { SaveFigure622(project, v); }, true);
}

}  // namespace gustline
