#pragma once

#include <QDialog>
#include <memory>

#include "buildings/ArchValues.h"

namespace Ui {
class Figure68;
}

namespace gustline {

struct Application;

// " External Pressure Coefficients for Arched Roofs, Cp, Figure 6-8", the main wind-force
// system: how the arch stands, its rise to span ratio, L/B of the walls, h/L and the area
// for wind parallel to the axis of the arch, and qi as in Figure 6-6. The control array
// Option1 is the support, Option2 is Option2_0 (qi = qh) and Option2_1 (qi = qz).
class Figure68 : public QDialog {
  Q_OBJECT

 public:
  explicit Figure68(Application& app, QWidget* parent = nullptr);
  ~Figure68() override;

  Figure68Values Values() const;
  void ShowValues(const Figure68Values& values);

  void Command1_Click();

 private:
  void UpdateQiFields();

  Application& app_;
  std::unique_ptr<Ui::Figure68> ui_;
  int table64_ = 1;
};

}  // namespace gustline
