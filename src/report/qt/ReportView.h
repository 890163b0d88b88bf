#pragma once

#include <QAbstractScrollArea>
#include <cstdint>
#include <optional>

#include "core/workbook/address/CellAddress.h"
#include "report/qt/SheetRenderer.h"

namespace gustline::wb {
class Workbook;
}

namespace gustline::report {

// The normal view of the report: the active sheet of the report book `ServerSS` as the
// spreadsheet shows it with headings and grid lines off, rows 1 to MaxRow, at the zoom of
// the zoom menu. Its cells are painted by the sheet renderer, as on paper.
//
// Use from the main window:
//   - Refresh() after each report build, and after anything else that changed the book; a
//     sheet made active or a book changed since is laid out anew before it is drawn;
//   - SetZoom(percent) from ApplyZoom, and SetZoom(100) when the print preview is left;
//   - TurnPage(1) and TurnPage(-1) for PageDown and PageUp (the view does not take these
//     keys itself, the window does);
//   - PopupRequested(globalPos) on a right click, for mnuPopup.
// A click makes a cell the book's active cell and selection; dragging, Shift with a click
// or Shift with the arrow keys extends the selection, which Edit Copy then copies.
class ReportView : public QAbstractScrollArea {
  Q_OBJECT

 public:
  explicit ReportView(wb::Workbook& report, QWidget* parent = nullptr);

  void Refresh();
  void SetZoom(int percent);
  int Zoom() const { return zoom_; }
  // Makes the next (step 1) or previous (step -1) sheet active; at the last or first sheet
  // it beeps, stays and returns false.
  bool TurnPage(int step);
  // The cell under a point of the viewport; nullopt beyond the shown rows and columns.
  std::optional<wb::CellAddress> CellAt(QPoint point) const;

 signals:
  void PopupRequested(const QPoint& globalPos);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void scrollContentsBy(int dx, int dy) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;

 private:
  // Pixels per point at the zoom.
  double PixelScale() const;
  void LayOut();
  // LayOut when the active sheet or the book has changed since the last one.
  void EnsureLaidOut();
  void SelectTo(wb::CellAddress cell, bool extend);

  wb::Workbook& report_;
  GridLayout grid_;
  std::uint32_t laidOutSheet_ = 0;
  std::uint64_t laidOutChange_ = 0;
  int zoom_ = 100;
  bool dragging_ = false;
  wb::CellAddress anchor_;
};

}  // namespace gustline::report
