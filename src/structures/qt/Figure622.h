#pragma once

#include <QDialog>
#include <memory>

#include "core/workbook/model/Workbook.h"
#include "structures/Figure622Values.h"

namespace Ui {
class Figure622;
}

namespace gustline {

struct Application;

// The force coefficients of trussed towers, Figure 6-23, under the name and title of
// Figure 6-22 that the program has always given it: the cross-section, the wind direction
// of square towers, the member shape and the solidity ratio e of each height interval in
// the grid F1Tower. OK refuses an empty e with that cell open for typing; Cancel writes
// nothing.
class Figure622 : public QDialog {
  Q_OBJECT

 public:
  explicit Figure622(Application& app, QWidget* parent = nullptr);
  ~Figure622() override;

  // The grid's ratios are read with the fields; it is filled once, as the dialog opens.
  Figure622Values Values();
  void ShowValues(const Figure622Values& values);

  void Command1_Click();

 private:
  void ShowCrossSection(int crossSection);

  Application& app_;
  std::unique_ptr<Ui::Figure622> ui_;
  wb::Workbook grid_{"F1Tower"};
  int rows_ = 0;
  // The values as loaded: a choice without a button is written back as it was.
  Figure622Values loaded_;
};

}  // namespace gustline
