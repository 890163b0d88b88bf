#pragma once

#include <QWidget>

#include "geometry/qt/OutlinePicture.h"

namespace gustline::geometry {

// The chart of the viewer, MSChart1: the outline picture filling the widget, its pop-up
// menu asked for on a right click.
class OutlineChart : public QWidget {
  Q_OBJECT

 public:
  explicit OutlineChart(QWidget* parent = nullptr);

  const OutlinePlot& Plot() const { return plot_; }
  void SetPlot(OutlinePlot plot);

 signals:
  void PopupRequested(const QPoint& globalPos);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;

 private:
  OutlinePlot plot_;
};

}  // namespace gustline::geometry
