#include "geometry/qt/OutlineChart.h"

#include <QContextMenuEvent>
#include <QPainter>

namespace gustline::geometry {

OutlineChart::OutlineChart(QWidget* parent) : QWidget(parent) {
  setMinimumSize(320, 320);
}

void OutlineChart::SetPlot(OutlinePlot plot) {
  plot_ = std::move(plot);
  update();
}

void OutlineChart::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  PaintOutline(painter, QRectF(rect()), plot_);
}

void OutlineChart::contextMenuEvent(QContextMenuEvent* event) {
  emit PopupRequested(event->globalPos());
}

}  // namespace gustline::geometry
