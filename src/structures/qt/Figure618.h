#pragma once

#include <QDialog>
#include <memory>

#include "structures/Figure618Values.h"

class QButtonGroup;

namespace Ui {
class Figure618;
}

namespace gustline {

struct Application;

// The net pressure coefficients of free roofs over open buildings for the main wind-force
// resisting system, Figures 6-18A to 6-18D: the roof type, its angle, and Note 5 of Figure
// 6-18D for free roofs of all shapes. OK checks the angle against the roof type and the
// note, then writes the cells; Cancel writes nothing.
class Figure618 : public QDialog {
  Q_OBJECT

 public:
  explicit Figure618(Application& app, QWidget* parent = nullptr);
  ~Figure618() override;

  Figure618Values Values() const;
  void ShowValues(const Figure618Values& values);

  // A roof type chosen: kept at once, and Note 5 offered for the free roof only.
  void RoofTypeOption_Click(int roofType);
  void OKButton_Click();

 private:
  Application& app_;
  std::unique_ptr<Ui::Figure618> ui_;
  QButtonGroup* roofType_;
  // The values as loaded, with the roof type chosen since: a stored type without a button
  // is written back as it was.
  Figure618Values working_;
};

}  // namespace gustline
