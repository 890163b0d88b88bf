#pragma once

#include <QDialog>
#include <memory>

#include "ui/UnitsValues.h"

namespace Ui {
class Units;
}

namespace gustline {

struct Application;

// "Units": the option groups Option1 (pressure), Option2 (force) and Option3 (moment) in
// the frames Frame1 to Frame3.
class Units : public QDialog {
  Q_OBJECT

 public:
  explicit Units(Application& app, QWidget* parent = nullptr);
  ~Units() override;

  UnitsValues Values() const;
  void ShowValues(const UnitsValues& values);

  // OK: writes the three indices, marks the project changed and rebuilds the report.
  void Command1_Click();

 private:
  Application& app_;
  std::unique_ptr<Ui::Units> ui_;
};

}  // namespace gustline
