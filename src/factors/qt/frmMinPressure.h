#pragma once

#include <QDialog>
#include <memory>

namespace Ui {
class frmMinPressure;
}

namespace gustline {

struct Application;

// "Minimum Pressure": Check1 switches the 10 psf floor of section 6.1.4, stored in
// `UseMinWindPressure` as 1 or 0.
class frmMinPressure : public QDialog {
  Q_OBJECT

 public:
  explicit frmMinPressure(Application& app, QWidget* parent = nullptr);
  ~frmMinPressure() override;

  bool UseMinimum() const;
  void SetUseMinimum(bool use);

  // OK: writes the switch, marks the project changed and rebuilds the report.
  void Command1_Click();

 private:
  Application& app_;
  std::unique_ptr<Ui::frmMinPressure> ui_;
};

// The menu entry: refreshes the status summary and shows the dialog modally; true at OK.
bool ShowMinPressure(QWidget* parent, Application& app);

}  // namespace gustline
