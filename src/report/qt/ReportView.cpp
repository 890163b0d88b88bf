#include "report/qt/ReportView.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>
#include <algorithm>
#include <cmath>

#include "core/workbook/model/Sheet.h"
#include "core/workbook/model/Workbook.h"

namespace gustline::report {
namespace {

constexpr int kMinimumZoom = 10;
constexpr int kMaximumZoom = 400;
const QColor kSelectionTint(0, 0, 128, 48);

// The index of the item whose [edge, next edge) holds `position`, 1-based; 0 before the
// first and count + 1 after the last.
int ItemAt(const std::vector<double>& edges, double position) {
  if (edges.size() < 2 || position < edges.front()) return 0;
  const auto after = std::upper_bound(edges.begin(), edges.end(), position);
  return static_cast<int>(after - edges.begin());
}

}  // namespace

ReportView::ReportView(wb::Workbook& report, QWidget* parent)
    : QAbstractScrollArea(parent), report_(report) {
  setObjectName(QStringLiteral("ServerSS"));
  setFocusPolicy(Qt::StrongFocus);
  viewport()->setAutoFillBackground(false);
  LayOut();
}

double ReportView::PixelScale() const {
  return zoom_ / 100.0 * logicalDpiX() / 72.0;
}

void ReportView::Refresh() {
  LayOut();
  const wb::Sheet& sheet = report_.GetSheet(report_.ActiveSheet());
  const double scale = PixelScale();
  const int top = std::clamp(sheet.topRow, 1, std::max(1, grid_.Rows()));
  const int left = std::clamp(sheet.leftCol, 1, std::max(1, grid_.Cols()));
  verticalScrollBar()->setValue(static_cast<int>(std::lround(grid_.RowY(top) * scale)));
  horizontalScrollBar()->setValue(static_cast<int>(std::lround(grid_.ColX(left) * scale)));
  viewport()->update();
}

void ReportView::SetZoom(int percent) {
  const double rowAtTop = verticalScrollBar()->value() / PixelScale();
  zoom_ = std::clamp(percent, kMinimumZoom, kMaximumZoom);
  LayOut();
  verticalScrollBar()->setValue(static_cast<int>(std::lround(rowAtTop * PixelScale())));
  viewport()->update();
}

bool ReportView::TurnPage(int step) {
  const int sheet = report_.ActiveSheet() + step;
  if (sheet < 1 || sheet > report_.SheetCount()) {
    QApplication::beep();
    return false;
  }
  report_.SetActiveSheet(sheet);
  Refresh();
  return true;
}

void ReportView::LayOut() {
  const wb::Sheet& sheet = report_.GetSheet(report_.ActiveSheet());
  const double scale = PixelScale();
  const wb::Area extent = PrintExtent(sheet, report_.Styles());
  const int rows = std::clamp(sheet.maxRow, 1, wb::kMaxRow);
  // Enough columns to fill the window, as a spreadsheet shows them.
  int cols = std::max(extent.lastCol, 1);
  double width = 0;
  for (int col = 1; col <= cols; ++col) width += sheet.ColumnWidth(col) * kPointsPerWidthUnit;
  while (width * scale < viewport()->width() && cols < wb::kMaxCol) {
    ++cols;
    width += sheet.ColumnWidth(cols) * kPointsPerWidthUnit;
  }
  grid_ = MakeGridLayout(sheet, report_.Styles(), rows, cols);
  laidOutSheet_ = sheet.Id();
  laidOutChange_ = report_.ChangeCount();
  const QSize content(static_cast<int>(std::ceil(grid_.colEdges.back() * scale)),
                      static_cast<int>(std::ceil(grid_.rowEdges.back() * scale)));
  const QSize page = viewport()->size();
  horizontalScrollBar()->setRange(0, std::max(0, content.width() - page.width()));
  horizontalScrollBar()->setPageStep(page.width());
  horizontalScrollBar()->setSingleStep(static_cast<int>(kDefaultRowHeight * scale));
  verticalScrollBar()->setRange(0, std::max(0, content.height() - page.height()));
  verticalScrollBar()->setPageStep(page.height());
  verticalScrollBar()->setSingleStep(static_cast<int>(kDefaultRowHeight * scale));
}

void ReportView::EnsureLaidOut() {
  if (report_.GetSheet(report_.ActiveSheet()).Id() != laidOutSheet_ ||
      report_.ChangeCount() != laidOutChange_) {
    LayOut();
  }
}

std::optional<wb::CellAddress> ReportView::CellAt(QPoint point) const {
  const double scale = PixelScale();
  const int col = ItemAt(grid_.colEdges, (point.x() + horizontalScrollBar()->value()) / scale);
  const int row = ItemAt(grid_.rowEdges, (point.y() + verticalScrollBar()->value()) / scale);
  if (row < 1 || row > grid_.Rows() || col < 1 || col > grid_.Cols()) return std::nullopt;
  return wb::CellAddress{row, col};
}

void ReportView::paintEvent(QPaintEvent*) {
  EnsureLaidOut();
  QPainter painter(viewport());
  painter.fillRect(viewport()->rect(), palette().color(QPalette::Dark));
  if (grid_.Rows() < 1 || grid_.Cols() < 1) return;
  const wb::Sheet& sheet = report_.GetSheet(report_.ActiveSheet());
  const double scale = PixelScale();
  const QPointF scroll(horizontalScrollBar()->value(), verticalScrollBar()->value());
  const QRectF visible(scroll / scale, QSizeF(viewport()->size()) / scale);

  const int firstRow = std::clamp(ItemAt(grid_.rowEdges, visible.top()), 1, grid_.Rows());
  const int lastRow = std::clamp(ItemAt(grid_.rowEdges, visible.bottom()), 1, grid_.Rows());
  const int lastCol = std::clamp(ItemAt(grid_.colEdges, visible.right()), 1, grid_.Cols());
  // From column A on, so that text running on from a column scrolled out of sight shows.
  const wb::Area area{firstRow, 1, lastRow, lastCol};
  const QRectF areaRect = grid_.AreaRect(area);

  painter.translate(-scroll);
  painter.scale(scale, scale);
  painter.fillRect(grid_.AreaRect({1, 1, grid_.Rows(), grid_.Cols()}), Qt::white);
  painter.setRenderHint(QPainter::TextAntialiasing);
  painter.save();
  painter.translate(areaRect.topLeft());
  report_.EnsureCalculated();
  DrawCells(painter, sheet, report_.Styles(), grid_, area, {sheet.Display().gridLines, false},
            visible.translated(-areaRect.topLeft()));
  painter.restore();

  const wb::Area& selection = sheet.selection;
  const QRectF selected = grid_.AreaRect(
      {std::min(selection.firstRow, grid_.Rows()), std::min(selection.firstCol, grid_.Cols()),
       std::min(selection.lastRow, grid_.Rows()), std::min(selection.lastCol, grid_.Cols())});
  const QRectF active = grid_.AreaRect(
      {std::min(sheet.active.row, grid_.Rows()), std::min(sheet.active.col, grid_.Cols()),
       std::min(sheet.active.row, grid_.Rows()), std::min(sheet.active.col, grid_.Cols())});
  if (selection.firstRow != selection.lastRow || selection.firstCol != selection.lastCol) {
    const QRegion tinted = QRegion(selected.toAlignedRect()).subtracted(active.toAlignedRect());
    for (const QRect& part : tinted) painter.fillRect(part, kSelectionTint);
  }
  QPen frame(Qt::black, 2);
  frame.setCosmetic(true);
  painter.setPen(frame);
  painter.setBrush(Qt::NoBrush);
  painter.drawRect(selected);
}

void ReportView::resizeEvent(QResizeEvent* event) {
  QAbstractScrollArea::resizeEvent(event);
  LayOut();
}

void ReportView::scrollContentsBy(int, int) {
  viewport()->update();
}

void ReportView::SelectTo(wb::CellAddress cell, bool extend) {
  if (!extend) {
    anchor_ = cell;
    report_.SetActiveCell(cell.row, cell.col);
  } else {
    report_.SetSelectionRC(std::min(anchor_.row, cell.row), std::min(anchor_.col, cell.col),
                           std::max(anchor_.row, cell.row), std::max(anchor_.col, cell.col));
  }
  viewport()->update();
}

void ReportView::mousePressEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return;
  const auto cell = CellAt(event->position().toPoint());
  if (!cell) return;
  SelectTo(*cell, (event->modifiers() & Qt::ShiftModifier) != 0);
  dragging_ = true;
}

void ReportView::mouseMoveEvent(QMouseEvent* event) {
  if (!dragging_) return;
  if (const auto cell = CellAt(event->position().toPoint())) SelectTo(*cell, true);
}

void ReportView::mouseReleaseEvent(QMouseEvent*) {
  dragging_ = false;
}

void ReportView::keyPressEvent(QKeyEvent* event) {
  const wb::Sheet& sheet = report_.GetSheet(report_.ActiveSheet());
  const bool extend = (event->modifiers() & Qt::ShiftModifier) != 0;
  wb::CellAddress cell =
      extend ? wb::CellAddress{sheet.selection.lastRow == anchor_.row ? sheet.selection.firstRow
                                                                      : sheet.selection.lastRow,
                               sheet.selection.lastCol == anchor_.col ? sheet.selection.firstCol
                                                                      : sheet.selection.lastCol}
             : sheet.active;
  if (!extend) anchor_ = sheet.active;
  switch (event->key()) {
    case Qt::Key_Up:
      --cell.row;
      break;
    case Qt::Key_Down:
      ++cell.row;
      break;
    case Qt::Key_Left:
      --cell.col;
      break;
    case Qt::Key_Right:
      ++cell.col;
      break;
    default:
      QAbstractScrollArea::keyPressEvent(event);
      return;
  }
  cell.row = std::clamp(cell.row, 1, std::max(1, grid_.Rows()));
  cell.col = std::clamp(cell.col, 1, std::max(1, grid_.Cols()));
  SelectTo(cell, extend);
}

void ReportView::contextMenuEvent(QContextMenuEvent* event) {
  emit PopupRequested(event->globalPos());
}

}  // namespace gustline::report
