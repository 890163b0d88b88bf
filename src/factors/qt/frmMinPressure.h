#pragma once

#include <QDialog>
#include <memory>

#include "factors/MinPressureValues.h"

namespace Ui {
class frmMinPressure;
}

namespace gustline {

struct Application;

// "Minimum Pressure": Check1 switches the 10 psf floor of section 6.1.4.
class frmMinPressure : public QDialog {
  Q_OBJECT

 public:
  explicit frmMinPressure(Application& app, QWidget* parent = nullptr);
  ~frmMinPressure() override;

  MinPressureValues Values() const;
  void ShowValues(const MinPressureValues& values);

  // OK: writes the switch, marks the project changed and rebuilds the report.
  void Command1_Click();

 private:
  Application& app_;
  std::unique_ptr<Ui::frmMinPressure> ui_;
};

}  // namespace gustline
