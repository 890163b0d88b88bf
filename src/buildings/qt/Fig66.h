#pragma once

#include <QDialog>
#include <functional>
#include <memory>

#include "buildings/Fig66Values.h"

namespace Ui {
class Fig66;
}

namespace gustline {

struct Application;

// "External Pressure Coefficients, Cp, Fig.6-6". The control array Option1 is Option1_0
// (qi = qh) and Option1_1 (qi = qz); the sliders Slider1 and Slider2 write the windward
// and leeward angles into Text2 and Text3.
class Fig66 : public QDialog {
  Q_OBJECT

 public:
  // `wallGeometry` opens the Geometry dialog for "Wall Geometry..."; without it the button
  // is greyed.
  explicit Fig66(Application& app, std::function<void()> wallGeometry = {},
                 QWidget* parent = nullptr);
  ~Fig66() override;

  // Fields and ticks as the dialog shows them.
  Fig66Values Values() const;
  void ShowValues(const Fig66Values& values);

  void Command1_Click();

 private:
  void UpdateQiFields();

  Application& app_;
  std::unique_ptr<Ui::Fig66> ui_;
  int table64_ = 1;
};

}  // namespace gustline
