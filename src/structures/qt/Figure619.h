#pragma once

#include <QDialog>
#include <memory>

#include "core/workbook/model/Workbook.h"
#include "structures/Figure619Values.h"

namespace Ui {
class Figure619;
}

namespace gustline {

struct Application;

// The force coefficients of chimneys, tanks and similar structures, Figure 6-21 (not the
// free roofs of Fig619): the cross-section, the horizontal dimension D of each height
// interval in the grid F1Chimney, and the factor of section 6.5.15.1. OK refuses an empty
// or non-positive D with that cell open for typing; Cancel writes nothing.
class Figure619 : public QDialog {
  Q_OBJECT

 public:
  explicit Figure619(Application& app, QWidget* parent = nullptr);
  ~Figure619() override;

  // The grid's diameters are read with the fields; it is filled once, as the dialog opens.
  Figure619Values Values();
  void ShowValues(const Figure619Values& values);

  void Command1_Click();

 private:
  Application& app_;
  std::unique_ptr<Ui::Figure619> ui_;
  wb::Workbook grid_{"F1Chimney"};
  int rows_ = 0;
  // The values as loaded: a cross-section without a button is written back as it was.
  Figure619Values loaded_;
};

}  // namespace gustline
