#pragma once

#include <QImage>
#include <QRectF>
#include <QString>
#include <QTransform>
#include <vector>

#include "geometry/OutlineBoundaries.h"

class QPainter;
class QPrinter;

namespace gustline::geometry {

// What the outline viewer draws: each boundary as its own line series, and a dashed line
// at each cut of the height intervals, over axes in feet at one scale for both.
struct OutlinePlot {
  QString title = QStringLiteral("Elevation View");
  std::vector<Boundary> boundaries;
  std::vector<double> cutHeights;
};

// The one drawing of the viewer: on screen, the clipboard's picture, the printed page and
// the tests' PNG all come from here.
void PaintOutline(QPainter& painter, const QRectF& area, const OutlinePlot& plot);
// Where the drawing in `area` puts a point in feet: one scale for both axes, the points
// and cuts centred in the frame of the axes.
QTransform OutlineTransform(const QRectF& area, const OutlinePlot& plot);
QImage OutlineImage(const OutlinePlot& plot, const QSize& size);
// The picture on one page, scaled to its printable area, and the document ended.
void PrintOutline(QPrinter& printer, const OutlinePlot& plot);

}  // namespace gustline::geometry
