#pragma once

#include <QDialog>
#include <memory>

#include "structures/Fig619Values.h"

namespace Ui {
class Fig619;
}

namespace gustline {

struct Application;

// "Net Pressure Coefficients for Free Roofs..., Cn, Figures 6-19A-C": the roof type and
// angle, the dimension a and the effective wind areas of zones 1 to 3 of the components and
// cladding of free roofs. OK writes the cells as they stand; Cancel writes nothing.
class Fig619 : public QDialog {
  Q_OBJECT

 public:
  explicit Fig619(Application& app, QWidget* parent = nullptr);
  ~Fig619() override;

  Fig619Values Values() const;
  void ShowValues(const Fig619Values& values);

  void OKButton_Click();

 protected:
  // Each box selects its whole text when it gets the focus.
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  Application& app_;
  std::unique_ptr<Ui::Fig619> ui_;
  // The values as loaded: a roof type without a button is written back as it was.
  Fig619Values loaded_;
};

}  // namespace gustline
