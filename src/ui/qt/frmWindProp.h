#pragma once

#include <QDialog>
#include <array>
#include <memory>
#include <string>

#include "ui/frmWindPropValues.h"
#include "ui/qt/FigureDialogs.h"

class QButtonGroup;
class QRadioButton;

namespace Ui {
class frmWindProp;
}

namespace gustline {

struct Application;

// The wind properties dialog: a modeless form whose tab strip SSTab1 shows one panel
// picTab_n per tab (0 design equation, 1 wind data, 2 building or structure, 3 gust
// factor, 4 topography, 5 force or pressure coefficients, 6 internal pressure).
// Control arrays are named with their index: Option1_0 to Option1_2 (System),
// Option2_n (Structure), Option3_n (category I to IV), Option4_0 to Option4_2 (exposure
// B, C, D), Option5_n (GustType), Option6_n (HillType), Option7_n (the enclosure class
// n of Table64, shown enclosed first), Option8_0 (Ri = 1.0) and Option8_1 (compute Ri).
// Its values are loaded from WindData when it is shown and written back when OK hides it;
// each later activation takes what changed in WindData meanwhile (another project opened).
// Command2, the close box and Escape hide it, write nothing and show the project's values
// in the status panels again.
class frmWindProp : public QDialog {
  Q_OBJECT

 public:
  explicit frmWindProp(Application& app, QWidget* parent = nullptr);
  ~frmWindProp() override;

  void UpdatePressureScreen();
  void UpdateForceFactorScreen();
  void UpdateGustScreen();
  void UpdateDimScreen();
  void TabSelect(int tab);

  // The controls as the dialog shows them.
  WindProperties Values() const;
  void ShowValues(const WindProperties& values);

  void Command1_Click();
  void Command10_Click();
  void Command5_Click();

  // The figure, table and topography dialogs that Command10, Command5 and Command8 open;
  // without one the button does nothing, and Command8 is off.
  void SetFigureDialogs(FigureDialogs dialogs);

  // The simplified dialog, which opens this one on its topography tab, builds the report
  // itself afterwards; meanwhile leaving this form writes the cells only.
  void SetReportOnLeave(bool on) { reportOnLeave_ = on; }

  void reject() override;

 protected:
  bool event(QEvent* event) override;
  void showEvent(QShowEvent* event) override;

 private:
  void Form_Activate();
  void Form_Reactivate();
  void UpdateScreens();
  void SystemOrStructureChanged();
  void TabChanged(int tab);
  void UpdateRiFrame();
  void UpdateStatus();
  void UpdateDensityLabels();
  void ReloadCarriedValues();

  Application& app_;
  std::unique_ptr<Ui::frmWindProp> ui_;
  QButtonGroup* system_;
  QButtonGroup* structure_;
  QButtonGroup* category_;
  QButtonGroup* exposure_;
  QButtonGroup* gust_;
  QButtonGroup* hill_;
  QButtonGroup* enclosure_;
  QButtonGroup* ri_;
  // What the dialog holds beyond its controls: the figure and table chosen, the values
  // carried from the figure dialogs, the interval method, and the height at activation.
  WindProperties held_;
  WindProperties loaded_;  // the project's values at the last activation
  std::string heightAtActivation_;
  bool reportOnLeave_ = true;
  FigureDialogs figureDialogs_;
};

// The dialog of the program, created on first use for this application and then kept.
frmWindProp& WindPropertiesForm(Application& app, QWidget* parent = nullptr);

// What the parameter commands of the main window do: refresh the status summary, select
// the tab and show the dialog, which opens the figure dialogs given.
void ShowWindProperties(Application& app, int tab, const FigureDialogs& figureDialogs,
                        QWidget* parent = nullptr);

}  // namespace gustline
