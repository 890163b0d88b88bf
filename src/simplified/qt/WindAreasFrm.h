#pragma once

#include <QDialog>
#include <functional>
#include <memory>

#include "simplified/WindAreasValues.h"

namespace Ui {
class WindAreasFrm;
}

namespace gustline {

struct Application;

// "Effective Wind Areas": the five components and cladding zones' areas, with a picture of
// the zones. OK checks the fields and writes the five cells; Cancel writes nothing.
class WindAreasFrm : public QDialog {
  Q_OBJECT

 public:
  explicit WindAreasFrm(Application& app, QWidget* parent = nullptr);
  ~WindAreasFrm() override;

  void SetHelp(std::function<void()> help);
  WindAreas Values() const;
  void ShowValues(const WindAreas& areas);
  // True once OK has written the areas.
  bool Confirmed() const { return confirmed_; }

  void Command1_Click();

 private:
  Application& app_;
  std::unique_ptr<Ui::WindAreasFrm> ui_;
  std::function<void()> help_;
  bool confirmed_ = false;
};

}  // namespace gustline
