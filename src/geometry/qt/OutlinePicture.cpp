#include "geometry/qt/OutlinePicture.h"

#include <QPainter>
#include <QPainterPath>
#include <QPrinter>
#include <algorithm>
#include <array>
#include <cmath>

namespace gustline::geometry {
namespace {

struct Extent {
  double minX = 0;
  double maxX = 0;
  double minY = 0;
  double maxY = 0;
};

// The points and cuts with the origin, so that the base of the structure shows, and a margin.
Extent PlotExtent(const OutlinePlot& plot) {
  Extent e;
  for (const Boundary& boundary : plot.boundaries)
    for (const PlotPoint& p : boundary) {
      e.minX = std::min(e.minX, p.x);
      e.maxX = std::max(e.maxX, p.x);
      e.minY = std::min(e.minY, p.y);
      e.maxY = std::max(e.maxY, p.y);
    }
  for (const double cut : plot.cutHeights) {
    e.minY = std::min(e.minY, cut);
    e.maxY = std::max(e.maxY, cut);
  }
  if (e.maxX - e.minX <= 0) e.maxX = e.minX + 1;
  if (e.maxY - e.minY <= 0) e.maxY = e.minY + 1;
  // A margin, so that no line lies on the frame of the axes.
  const double margin = std::max(e.maxX - e.minX, e.maxY - e.minY) * 0.04;
  return {e.minX - margin, e.maxX + margin, e.minY - margin, e.maxY + margin};
}

// A step of 1, 2 or 5 times a power of ten that cuts `span` into at most `count` parts.
double TickStep(double span, int count) {
  const double raw = span / count;
  const double power = std::pow(10.0, std::floor(std::log10(raw)));
  for (const double m : {1.0, 2.0, 5.0, 10.0})
    if (m * power >= raw) return m * power;
  return 10 * power;
}

QString TickText(double value) {
  return QString::number(value, 'g', 10);
}

// The text height unit of a picture of this size, and the frame of its axes.
double Unit(const QRectF& area) {
  return std::max(1.0, std::min(area.width(), area.height()) / 60.0);
}

QRectF TitleBox(const QRectF& area) {
  const double unit = Unit(area);
  return {area.left(), area.top() + unit, area.width(), unit * 3};
}

QRectF AxesFrame(const QRectF& area) {
  const double unit = Unit(area);
  const QRectF title = TitleBox(area);
  return {area.left() + unit * 8, title.bottom() + unit, area.width() - unit * 10,
          area.height() - title.height() - unit * 9};
}

constexpr std::array<QRgb, 6> kSeriesColours = {0x1f4e9c, 0xc0392b, 0x2e8b57,
                                                0x8e44ad, 0xd35400, 0x2c3e50};

}  // namespace

QTransform OutlineTransform(const QRectF& area, const OutlinePlot& plot) {
  const QRectF frame = AxesFrame(area);
  const Extent e = PlotExtent(plot);
  const double scale =
      std::min(frame.width() / (e.maxX - e.minX), frame.height() / (e.maxY - e.minY));
  QTransform transform;
  transform.translate(frame.center().x(), frame.center().y());
  transform.scale(scale, -scale);
  transform.translate(-(e.minX + e.maxX) / 2, -(e.minY + e.maxY) / 2);
  return transform;
}

void PaintOutline(QPainter& painter, const QRectF& area, const OutlinePlot& plot) {
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.fillRect(area, Qt::white);
  const double unit = Unit(area);
  QFont font = painter.font();
  font.setPixelSize(static_cast<int>(std::lround(unit * 1.6)));
  QFont titleFont = font;
  titleFont.setBold(true);
  titleFont.setPixelSize(static_cast<int>(std::lround(unit * 2.2)));

  const QRectF titleBox = TitleBox(area);
  painter.setFont(titleFont);
  painter.setPen(Qt::black);
  painter.drawText(titleBox, Qt::AlignCenter, plot.title);

  const QRectF frame = AxesFrame(area);
  // One scale for both axes: the outline keeps its true shape.
  const QTransform transform = OutlineTransform(area, plot);
  const auto toScreen = [&](double x, double y) { return transform.map(QPointF(x, y)); };
  const QRectF feet = transform.inverted().mapRect(frame);
  const double left = feet.left();
  const double right = feet.right();
  const double bottom = feet.top();
  const double top = feet.bottom();

  painter.setFont(font);
  const double step = TickStep(std::max(right - left, top - bottom), 10);
  const QPen gridPen(QColor(0xdd, 0xdd, 0xdd), 0);
  for (double x = std::ceil(left / step) * step; x <= right; x += step) {
    painter.setPen(gridPen);
    painter.drawLine(toScreen(x, bottom), toScreen(x, top));
    painter.setPen(Qt::black);
    const QPointF at = toScreen(x, bottom);
    painter.drawText(QRectF(at.x() - unit * 4, at.y() + unit * 0.5, unit * 8, unit * 2),
                     Qt::AlignHCenter | Qt::AlignTop, TickText(x));
  }
  for (double y = std::ceil(bottom / step) * step; y <= top; y += step) {
    painter.setPen(gridPen);
    painter.drawLine(toScreen(left, y), toScreen(right, y));
    painter.setPen(Qt::black);
    const QPointF at = toScreen(left, y);
    painter.drawText(
        QRectF(area.left(), at.y() - unit, at.x() - area.left() - unit * 0.5, unit * 2),
        Qt::AlignRight | Qt::AlignVCenter, TickText(y));
  }
  painter.setPen(QPen(Qt::black, 0));
  painter.drawRect(frame);
  painter.drawText(QRectF(frame.left(), frame.bottom() + unit * 2.5, frame.width(), unit * 2),
                   Qt::AlignHCenter | Qt::AlignTop, QStringLiteral("X  [ ft ]"));
  painter.save();
  painter.translate(area.left() + unit, frame.center().y());
  painter.rotate(-90);
  painter.drawText(QRectF(-frame.height() / 2, 0, frame.height(), unit * 2), Qt::AlignCenter,
                   QStringLiteral("Y  [ ft ]"));
  painter.restore();

  painter.setClipRect(frame);
  QPen cutPen(QColor(0x80, 0x80, 0x80), 0, Qt::DashLine);
  painter.setPen(cutPen);
  for (const double cut : plot.cutHeights)
    painter.drawLine(toScreen(left, cut), toScreen(right, cut));

  for (std::size_t i = 0; i < plot.boundaries.size(); ++i) {
    const QColor colour(kSeriesColours[i % kSeriesColours.size()]);
    painter.setPen(QPen(colour, std::max(1.0, unit * 0.25)));
    QPainterPath path;
    const Boundary& boundary = plot.boundaries[i];
    for (std::size_t k = 0; k < boundary.size(); ++k) {
      const QPointF p = toScreen(boundary[k].x, boundary[k].y);
      if (k == 0)
        path.moveTo(p);
      else
        path.lineTo(p);
    }
    painter.drawPath(path);
    painter.setBrush(colour);
    for (const PlotPoint& point : boundary)
      painter.drawEllipse(toScreen(point.x, point.y), unit * 0.35, unit * 0.35);
    painter.setBrush(Qt::NoBrush);
  }
  painter.restore();
}

QImage OutlineImage(const OutlinePlot& plot, const QSize& size) {
  QImage image(size, QImage::Format_RGB32);
  QPainter painter(&image);
  PaintOutline(painter, QRectF(QPointF(0, 0), QSizeF(size)), plot);
  return image;
}

void PrintOutline(QPrinter& printer, const OutlinePlot& plot) {
  QPainter painter(&printer);
  const QRectF page = printer.pageLayout().paintRectPixels(printer.resolution());
  PaintOutline(painter, QRectF(QPointF(0, 0), page.size()), plot);
  painter.end();
}

}  // namespace gustline::geometry
