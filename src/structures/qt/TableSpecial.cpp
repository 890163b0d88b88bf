#include "structures/qt/TableSpecial.h"

#include "core/Application.h"
#include "core/ProcessState.h"
#include "structures/IntervalValues.h"
#include "structures/qt/IntervalGrid.h"
#include "ui/grid/qt/SheetGrid.h"
#include "ui/rules/qt/PropertyDialog.h"
#include "ui_TableSpecial.h"

namespace gustline {
namespace {

constexpr int kAreaCol = 3;
constexpr int kCoefficientCol = 4;

}  // namespace

TableSpecial::TableSpecial(Application& app, QWidget* parent)
    : QDialog(parent), app_(app), ui_(std::make_unique<Ui::TableSpecial>()) {
  ui_->setupUi(this);
  connect(ui_->Command1, &QPushButton::clicked, this, [this] { Command1_Click(); });
  connect(ui_->Command2, &QPushButton::clicked, this, &QDialog::reject);
  const TableSpecialValues v = LoadTableSpecial(app_.state.ProjectWorkbook());
  ShowValues(v);
  const std::string lists[] = {v.areas, v.coefficients};
  rows_ = ShowIntervalGrid(*ui_->F1Special, grid_, app_.state.ProjectWorkbook(), app_.prompt,
                           {QStringLiteral("Area\n[ sq. ft ]"), QStringLiteral("Cf")}, lists);
  ui_->F1Special->SetEntryRule(
      [](int, int, std::string_view entry) { return TableSpecialEntryRefusal(entry); });
  AddIntervalGridMenu(*ui_->F1Special,
                      {QStringLiteral("&Cut"), QStringLiteral("C&opy"), QStringLiteral("&Paste"),
                       QStringLiteral("Cle&ar"), QStringLiteral("Copy &Down")});
}

// The grid goes first: the book it shows is a member, gone before the dialog's children.
TableSpecial::~TableSpecial() {
  delete ui_->F1Special;
}

TableSpecialValues TableSpecial::Values() {
  TableSpecialValues v;
  rules::ReadFields(*this, kTableSpecialFields, v);
  v.areas = IntervalGridList(grid_, kAreaCol, rows_, true);
  v.coefficients = IntervalGridList(grid_, kCoefficientCol, rows_, true);
  return v;
}

void TableSpecial::ShowValues(const TableSpecialValues& v) {
  rules::ShowFields(*this, kTableSpecialFields, v);
}

void TableSpecial::Command1_Click() {
  constexpr int kCols[] = {kAreaCol, kCoefficientCol};
  if (!CheckIntervalGrid(*ui_->F1Special, app_.prompt, kCols, rows_, false)) return;
  const TableSpecialValues v = Values();
  AcceptPropertyValues(
      *this, app_, [&v](wb::Workbook& project) { SaveTableSpecial(project, v); }, true);
}

}  // namespace gustline
