#include "structures/qt/Figure619.h"

#include "core/Application.h"
#include "core/ProcessState.h"
#include "structures/IntervalValues.h"
#include "structures/qt/IntervalGrid.h"
#include "ui/rules/qt/PropertyDialog.h"
#include "ui_Figure619.h"

namespace gustline {
namespace {

constexpr int kDiameterCol = 3;

}  // namespace

Figure619::Figure619(Application& app, QWidget* parent)
    : QDialog(parent), app_(app), ui_(std::make_unique<Ui::Figure619>()) {
  ui_->setupUi(this);
  rules::OptionGroup(*this, "CrossSectionOption", kFigure619CrossSections);
  connect(ui_->Use6515CheckBox, &QCheckBox::toggled, this, [this](bool ticked) {
    ui_->AfBhRatioLabel->setEnabled(ticked);
    ui_->AfBhRatioEditBox->setEnabled(ticked);
  });
  AddIntervalGridMenu(*ui_->F1Chimney,
                      {QStringLiteral("Cu&t"), QStringLiteral("&Copy"), QStringLiteral("&Paste"),
                       QStringLiteral("Cle&ar"), QStringLiteral("Copy Do&wn")});
  connect(ui_->Command1, &QPushButton::clicked, this, [this] { Command1_Click(); });
  connect(ui_->Command2, &QPushButton::clicked, this, &QDialog::reject);
  const Figure619Values v = LoadFigure619(app_.state.ProjectWorkbook());
  ShowValues(v);
  const std::string lists[] = {v.diameters};
  rows_ = ShowIntervalGrid(*ui_->F1Chimney, grid_, app_.state.ProjectWorkbook(), app_.prompt,
                           {QStringLiteral("Horizontal\nDimension [ ft ]")}, lists);
}

// The grid goes first: the book it shows is a member, gone before the dialog's children.
Figure619::~Figure619() {
  delete ui_->F1Chimney;
}

Figure619Values Figure619::Values() {
  Figure619Values v = loaded_;
  rules::ReadFields(*this, kFigure619Fields, v);
  v.diameters = IntervalGridList(grid_, kDiameterCol, rows_, false);
  return v;
}

void Figure619::ShowValues(const Figure619Values& v) {
  loaded_ = v;
  rules::ShowFields(*this, kFigure619Fields, v);
  ui_->AfBhRatioLabel->setEnabled(v.use6515);
  ui_->AfBhRatioEditBox->setEnabled(v.use6515);
}

void Figure619::Command1_Click() {
  constexpr int kCols[] = {kDiameterCol};
  if (!CheckIntervalGrid(*ui_->F1Chimney, app_.prompt, kCols, rows_, true)) return;
  const Figure619Values v = Values();
  AcceptProperties(*this, app_, kFigure619Fields,
                   [&v](wb::Workbook& project) { SaveFigure619(project, v); });
}

}  // namespace gustline
