#pragma once

#include <QDialog>
#include <memory>

#include "buildings/ArchValues.h"

namespace Ui {
class Figure68comp;
}

namespace gustline {

struct Application;

// "Figure 6-8 Components and Cladding": how the arch stands, its rise to span ratio, the
// effective wind areas of roof zones 1 to 3 and the roof angle of the perimeter, and qi.
// The control array Option1 is the support, Option2 is Option2_0 (qi = qh) and Option2_1
// (qi = qz); the slider Slider1 writes the angle into Text6.
class Figure68comp : public QDialog {
  Q_OBJECT

 public:
  explicit Figure68comp(Application& app, QWidget* parent = nullptr);
  ~Figure68comp() override;

  Figure68compValues Values() const;
  void ShowValues(const Figure68compValues& values);

  void Command1_Click();

 private:
  void UpdateQiFields();

  Application& app_;
  std::unique_ptr<Ui::Figure68comp> ui_;
  int table64_ = 1;
};

}  // namespace gustline
