#pragma once

#include <QDialog>
#include <memory>

namespace Ui {
class frmTopography;
}

namespace gustline {

// "View Topography...": two pictures of the hill shapes of Figure 6-4. It takes no input.
class frmTopography : public QDialog {
  Q_OBJECT

 public:
  explicit frmTopography(QWidget* parent = nullptr);
  ~frmTopography() override;

 private:
  std::unique_ptr<Ui::frmTopography> ui_;
};

}  // namespace gustline
