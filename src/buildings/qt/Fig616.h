#pragma once

#include <QDialog>
#include <memory>

#include "buildings/DomeValues.h"

namespace Ui {
class Fig616;
}

namespace gustline {

struct Application;

// "Domed Roofs, Figure 6-16": the rise f, the eave height hD and the diameter D of a domed
// roof for its components and cladding. OK refuses a dome outside the figure's f/D and hD/D.
class Fig616 : public QDialog {
  Q_OBJECT

 public:
  explicit Fig616(Application& app, QWidget* parent = nullptr);
  ~Fig616() override;

  Fig616Values Values() const;
  void ShowValues(const Fig616Values& values);

  void Command1_Click();

 private:
  Application& app_;
  std::unique_ptr<Ui::Fig616> ui_;
};

}  // namespace gustline
