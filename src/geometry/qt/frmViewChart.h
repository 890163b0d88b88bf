#pragma once

#include <QDialog>
#include <memory>
#include <vector>

namespace Ui {
class frmViewChart;
}

class QMenu;

namespace gustline {
class Prompt;
}

namespace gustline::wb {
class Workbook;
}

namespace gustline::geometry {

class OutlineChart;

// The outline viewer: the boundaries of a coordinate grid with the cuts of the height
// intervals. Its pop-up menu mnuPopUp copies the chart to the clipboard as a picture,
// prints it, changes its title and closes the view. The title typed last stays while the
// program runs.
class frmViewChart : public QDialog {
  Q_OBJECT

 public:
  frmViewChart(Prompt& prompt, QWidget* parent = nullptr);
  ~frmViewChart() override;

  // The grid's boundaries in the chart; false, with "Geometry  is undefined!!!", when the
  // grid is empty.
  bool ViewGeometry(wb::Workbook& grid, std::vector<double> cutHeights);

  OutlineChart& Chart() const;
  QMenu* PopupMenu() const { return popup_; }
  // The commands of mnuPopUp: mnuCopy, mnuPrint and mnuTitle.
  void CopyPicture();
  void PrintPicture();
  void AskTitle();

 private:
  Prompt& prompt_;
  std::unique_ptr<Ui::frmViewChart> ui_;
  QMenu* popup_ = nullptr;
};

}  // namespace gustline::geometry
