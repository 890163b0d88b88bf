#pragma once

#include <QDialog>
#include <memory>

#include "buildings/Fig617Values.h"

namespace Ui {
class Fig617;
}

namespace gustline {

struct Application;

// "External Pressure Coefficients, GCp, Fig. 6-17". The control array Option1 is
// Option1_0 (qi = qh) and Option1_1 (qi = qz); the slider Slider1 writes the angle into
// Text6.
class Fig617 : public QDialog {
  Q_OBJECT

 public:
  explicit Fig617(Application& app, QWidget* parent = nullptr);
  ~Fig617() override;

  Fig617Values Values() const;
  void ShowValues(const Fig617Values& values);

  void Command1_Click();

 private:
  void UpdateQiFields();

  Application& app_;
  std::unique_ptr<Ui::Fig617> ui_;
  int table64_ = 1;
};

}  // namespace gustline
