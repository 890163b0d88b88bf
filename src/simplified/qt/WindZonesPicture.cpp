#include "simplified/qt/WindZonesPicture.h"

#include <QPainter>
#include <QPainterPath>

namespace gustline {
namespace {

// A zone: its rectangle filled with the shade of its number, the number in its middle.
void Zone(QPainter& painter, const QRectF& area, int zone) {
  static const QColor shades[] = {Qt::white,
                                  QColor(235, 235, 235),
                                  QColor(200, 200, 200),
                                  QColor(160, 160, 160),
                                  QColor(225, 225, 225),
                                  QColor(180, 180, 180)};
  painter.fillRect(area, shades[zone]);
  painter.drawRect(area);
  painter.drawText(area, Qt::AlignCenter, QString::number(zone));
}

}  // namespace

WindZonesPicture::WindZonesPicture(QWidget* parent) : QWidget(parent) {}

QSize WindZonesPicture::sizeHint() const {
  return {220, 230};
}

void WindZonesPicture::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.fillRect(rect(), palette().window());
  const QFontMetrics metrics(font());
  const double line = metrics.height();
  const double width = this->width() - 20;
  const double a = width / 8;

  // The roof in plan.
  const QRectF roof(10, line + 4, width, width * 0.55);
  painter.drawText(QRectF(10, 0, width, line), Qt::AlignLeft, QStringLiteral("Roof"));
  const double x0 = roof.left(), x1 = roof.right() - a, y0 = roof.top(), y1 = roof.bottom() - a;
  Zone(painter, roof.adjusted(a, a, -a, -a), 1);
  Zone(painter, QRectF(x0 + a, y0, width - 2 * a, a), 2);
  Zone(painter, QRectF(x0 + a, y1, width - 2 * a, a), 2);
  Zone(painter, QRectF(x0, y0 + a, a, roof.height() - 2 * a), 2);
  Zone(painter, QRectF(x1, y0 + a, a, roof.height() - 2 * a), 2);
  for (const QPointF corner : {QPointF(x0, y0), QPointF(x1, y0), QPointF(x0, y1), QPointF(x1, y1)})
    Zone(painter, QRectF(corner, QSizeF(a, a)), 3);

  // A wall in elevation.
  const double top = roof.bottom() + 2 * line;
  painter.drawText(QRectF(10, top - line - 2, width, line), Qt::AlignLeft, QStringLiteral("Wall"));
  const QRectF wall(10, top, width, width * 0.3);
  Zone(painter, wall.adjusted(a, 0, -a, 0), 4);
  Zone(painter, QRectF(wall.topLeft(), QSizeF(a, wall.height())), 5);
  Zone(painter, QRectF(QPointF(wall.right() - a, wall.top()), QSizeF(a, wall.height())), 5);
  painter.drawText(QRectF(10, wall.bottom() + 2, width, line), Qt::AlignLeft,
                   QStringLiteral("a: zone width, Figure 6-3"));
}

}  // namespace gustline
