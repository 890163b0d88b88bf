#pragma once

#include <QDialog>
#include <memory>

#include "buildings/Fig611Values.h"

class QButtonGroup;

namespace Ui {
class Fig611;
}

namespace gustline {

struct Application;

// "External Pressure Coefficients, GCp, Fig. 6-11 Thru 6-15". The option array Option1 is
// the roof type, whose cells the roof zones and the angle show; the slider Slider1 writes
// the angle into Text6.
class Fig611 : public QDialog {
  Q_OBJECT

 public:
  explicit Fig611(Application& app, int roofType = 0, QWidget* parent = nullptr);
  ~Fig611() override;

  Fig611Values Values() const;
  void ShowValues(const Fig611Values& values);

  // Another roof type chosen: its roof zones and angle are shown.
  void Option1_Click(int roofType);
  void Command1_Click();

 private:
  Application& app_;
  std::unique_ptr<Ui::Fig611> ui_;
  QButtonGroup* roofType_;
};

}  // namespace gustline
