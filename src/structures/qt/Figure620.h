#pragma once

#include <QDialog>
#include <memory>

#include "structures/Figure620Values.h"

namespace Ui {
class Figure620;
}

namespace gustline {

struct Application;

// The force coefficients of solid freestanding walls and solid signs, Figure 6-20: the
// dimensions B, s and h, the ratio of solid to gross area and the return corner Lr. OK
// checks them, refuses a sign taller than its height to the top, and writes them with the
// three ratios the figure is read by; Cancel writes nothing.
class Figure620 : public QDialog {
  Q_OBJECT

 public:
  explicit Figure620(Application& app, QWidget* parent = nullptr);
  ~Figure620() override;

  Figure620Values Values() const;
  void ShowValues(const Figure620Values& values);

  void Command1_Click();

 private:
  Application& app_;
  std::unique_ptr<Ui::Figure620> ui_;
};

}  // namespace gustline
