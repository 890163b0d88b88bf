#pragma once

#include <QDialog>
#include <memory>

#include "buildings/DomeValues.h"

namespace Ui {
class Figure67;
}

namespace gustline {

struct Application;

// "External Pressure Coefficients, Cp, Figure 6-7": the rise f, the eave height hD and the
// diameter D of a domed roof, and qi as in Figure 6-6. OK refuses an f/D outside the figure.
// The control array Option1 is Option1_0 (qi = qh) and Option1_1 (qi = qz).
class Figure67 : public QDialog {
  Q_OBJECT

 public:
  explicit Figure67(Application& app, QWidget* parent = nullptr);
  ~Figure67() override;

  Figure67Values Values() const;
  void ShowValues(const Figure67Values& values);

  void Command1_Click();

 private:
  void UpdateQiFields();

  Application& app_;
  std::unique_ptr<Ui::Figure67> ui_;
  int table64_ = 1;
};

}  // namespace gustline
