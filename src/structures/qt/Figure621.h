#pragma once

#include <QDialog>
#include <memory>

#include "structures/Figure621Values.h"

class QButtonGroup;

namespace Ui {
class Figure621;
}

namespace gustline {

struct Application;

// The force coefficients of open signs and lattice frameworks, Figure 6-22, under the name
// and title of Figure 6-21 that the program has always given it: the member shape, the
// solidity ratio and the diameter of rounded members. OK checks the two boxes and writes
// the three cells; Cancel writes nothing.
class Figure621 : public QDialog {
  Q_OBJECT

 public:
  explicit Figure621(Application& app, QWidget* parent = nullptr);
  ~Figure621() override;

  Figure621Values Values() const;
  void ShowValues(const Figure621Values& values);

  void Command1_Click();

 private:
  void ShowShape(int memberShape);

  Application& app_;
  std::unique_ptr<Ui::Figure621> ui_;
  QButtonGroup* shape_;
  // The values as loaded: a shape without a button is written back as it was.
  Figure621Values loaded_;
};

}  // namespace gustline
