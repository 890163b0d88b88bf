#pragma once

#include <QDialog>
#include <memory>

namespace Ui {
class About;
}

namespace gustline {

// "About Gustline": the program's title, its reference to ASCE 7-05 and its version, with
// one button that closes it.
class About : public QDialog {
  Q_OBJECT

 public:
  explicit About(QWidget* parent = nullptr);
  ~About() override;

 private:
  std::unique_ptr<Ui::About> ui_;
};

// The menu entry: shows the box modally.
void ShowAbout(QWidget* parent);

}  // namespace gustline
