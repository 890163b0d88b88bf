#pragma once

#include <QDialog>
#include <functional>
#include <memory>
#include <string>

#include "simplified/SimplifiedValues.h"

class QButtonGroup;

namespace Ui {
class frmSimplified;
}

namespace gustline {

struct Application;

// "Simplified Procedure- Design Parameters": every input of Method 1 in one place. It is
// made once and kept: after Cancel it shows again what was typed, until an OK or another
// project. Leaving it
// (OK, or opening the topography page or the areas dialog on top of it) writes the inputs
// and the simplified switch B124; the report follows unless the topography page is open.
// Option arrays: Option1_n system, Option3_n category I to IV, Option4_n exposure B, C, D.
class frmSimplified : public QDialog {
  Q_OBJECT

 public:
  explicit frmSimplified(Application& app, QWidget* parent = nullptr);
  ~frmSimplified() override;

  // The wind properties dialog shown modally on its topography page, and Help of this
  // dialog and of the areas dialog; handed by the main window.
  void SetTopography(std::function<void(QWidget* parent)> topography);
  void SetHelp(std::function<void()> help, std::function<void()> areasHelp);

  // What the menu entry does: the dialog shown modally.
  void Exec();

  SimplifiedValues Values() const;
  void ShowValues(const SimplifiedValues& values);

  void Command1_Click();
  void Command3_Click();
  void Command4_Click();
  void reject() override;

 protected:
  // Showing the dialog reads the project, unless it was cancelled before.
  void showEvent(QShowEvent* event) override;

 private:
  void Form_Activate();
  void Leave();
  void SystemChosen(int system);
  void ShowAreaControls(int system);
  bool eventFilter(QObject* watched, QEvent* event) override;

  Application& app_;
  std::unique_ptr<Ui::frmSimplified> ui_;
  QButtonGroup* system_;
  QButtonGroup* category_;
  QButtonGroup* exposure_;
  bool cancelled_ = false;
  std::string cancelledProject_;  // the project's name at the Cancel
  bool topographyOpen_ = false;
  std::function<void(QWidget*)> topography_;
  std::function<void()> help_;
  std::function<void()> areasHelp_;
};

}  // namespace gustline
