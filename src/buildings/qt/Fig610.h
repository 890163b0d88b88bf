#pragma once

#include <QDialog>
#include <memory>

#include "buildings/Fig610Values.h"

namespace Ui {
class Fig610;
}

namespace gustline {

struct Application;

// "External Pressure Coefficient, GCpf, Fig. 6-10": the roof angle with its slider, and
// the parapet.
class Fig610 : public QDialog {
  Q_OBJECT

 public:
  explicit Fig610(Application& app, QWidget* parent = nullptr);
  ~Fig610() override;

  Fig610Values Values() const;
  void ShowValues(const Fig610Values& values);

  void Command1_Click();

 private:
  Application& app_;
  std::unique_ptr<Ui::Fig610> ui_;
};

}  // namespace gustline
