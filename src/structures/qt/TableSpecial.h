#pragma once

#include <QDialog>
#include <memory>

#include "core/workbook/model/Workbook.h"
#include "structures/TableSpecialValues.h"

namespace Ui {
class TableSpecial;
}

namespace gustline {

struct Application;

// The special case, a structure that no figure covers: the projected area and the force
// coefficient of each height interval in the grid F1Special, and the wind directionality
// factor Kd. OK refuses an empty cell with that cell open for typing; Cancel writes
// nothing.
class TableSpecial : public QDialog {
  Q_OBJECT

 public:
  explicit TableSpecial(Application& app, QWidget* parent = nullptr);
  ~TableSpecial() override;

  // The grid's lists are read with the box; it is filled once, as the dialog opens.
  TableSpecialValues Values();
  void ShowValues(const TableSpecialValues& values);

  void Command1_Click();

 private:
  Application& app_;
  std::unique_ptr<Ui::TableSpecial> ui_;
  wb::Workbook grid_{"F1Special"};
  int rows_ = 0;
};

}  // namespace gustline
