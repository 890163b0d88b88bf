#pragma once

#include <QDialog>
#include <array>
#include <functional>
#include <map>
#include <memory>

#include "core/workbook/model/Workbook.h"
#include "geometry/GeometryValues.h"

class QRadioButton;

namespace Ui {
class Geometry;
}

namespace gustline {
struct Application;
}

namespace gustline::geometry {

class frmViewChart;

// The Geometry dialog: the height intervals of the report on its first tab (the mode in
// the option array Option1, the order in Option2, the user's lengths in the grid F1Book1)
// and the outline of the structure on its second (the grid F1Book2 over `Sheet2` of the
// project). Made once and kept: the grids, the tick of Check1 and the viewer's title live
// as long as the program.
class Geometry : public QDialog {
  Q_OBJECT

 public:
  enum Tab { kIntervalsTab = 0, kCoordinatesTab = 1 };

  explicit Geometry(Application& app, QWidget* parent = nullptr);
  ~Geometry() override;

  // Loads the dialog from the project at the tab given; Exec shows it modally after.
  void Display(int tab);
  int Exec(int tab);

  // The dialogs that hold a list by interval, opened by the prompt of "Changing Interval";
  // and what Help opens.
  void SetIntervalListDialogs(std::map<IntervalListDialog, std::function<void()>> dialogs);
  void SetHelp(std::function<void()> help);

  GeometryValues Values() const { return values_; }
  wb::Workbook& IntervalGrid() { return intervalGrid_; }
  wb::Workbook& OutlineGrid() { return outlineGrid_; }
  frmViewChart& Viewer();

  // The handlers, as the user's clicks run them.
  void Option1_Click(int mode);
  void Option2_Click(int order);
  void Command1_Click();
  void Command2_Click();
  void Command4_Click();
  void Command5_Click();
  void Command6_Click();
  void CheckHeightInterval();
  bool Dirty() const { return dirty_; }

 private:
  // Option1_0 to Option1_5.
  std::array<QRadioButton*, 6> ModeOptions() const;
  void ShowMode();
  void ChangingIntervalPrompt();
  void ShowEditMenu(int grid, const QPoint& globalPos);

  Application& app_;
  std::unique_ptr<Ui::Geometry> ui_;
  wb::Workbook intervalGrid_{"F1Book1"};
  wb::Workbook outlineGrid_{"F1Book2"};
  std::unique_ptr<frmViewChart> viewer_;
  std::map<IntervalListDialog, std::function<void()>> intervalListDialogs_;
  std::function<void()> help_;
  GeometryValues values_;
  int openedMode_ = 0;
  bool dirty_ = false;
  bool dirtyAtShow_ = false;
};

}  // namespace gustline::geometry
