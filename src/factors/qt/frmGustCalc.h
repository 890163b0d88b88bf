#pragma once

#include <QDialog>
#include <memory>
#include <string_view>

#include "core/workbook/model/Workbook.h"
#include "factors/GustCalcValues.h"

class QMenu;

namespace Ui {
class frmGustCalc;
}

namespace gustline {

struct Application;

namespace report {
class ReportView;
}

// "Gust Factor Calculator": a gust effect factor worked out on a workbook of its own from the
// values typed into it, whatever the project holds. The label of "Calculated Gust Factor"
// follows every edit. View... shows the workbook over the whole window, with the pop-up
// commands Copy, Select All, Print... and Return to Calculator. Nothing reaches the project.
class frmGustCalc : public QDialog {
  Q_OBJECT

 public:
  explicit frmGustCalc(Application& app, QWidget* parent = nullptr);
  ~frmGustCalc() override;

  GustCalcValues Values() const;
  void ShowValues(const GustCalcValues& values);
  wb::Workbook& Book() { return gustCalc_; }

  // Writes the fields into the workbook and shows G.
  void Refresh();
  // A box left: its rule checked, and on a failure the box takes the focus back.
  bool CheckField(std::string_view control);

  // View...: the input panel out of sight, the workbook over the window.
  void Command1_Click();
  // Print, and the pop-up's Print...: both pages.
  void Command2_Click();
  // The pop-up's Return to Calculator.
  void ReturnToCalculator();
  // The pop-up's Select All.
  void SelectAll();
  QMenu& Popup() { return *popup_; }

 private:
  Application& app_;
  std::unique_ptr<Ui::frmGustCalc> ui_;
  wb::Workbook gustCalc_;
  report::ReportView* view_ = nullptr;
  QMenu* popup_ = nullptr;
};

// mnuToolsGustCalc: the calculator, created as a child of `parent` on first use and then
// only shown again.
frmGustCalc& ShowGustCalc(QWidget* parent, Application& app);

}  // namespace gustline
