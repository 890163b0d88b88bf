#include "factors/qt/TopographyPicture.h"

#include <QPainter>
#include <QPainterPath>
#include <QVariant>

namespace gustline {

TopographyPicture::TopographyPicture(QWidget* parent) : QWidget(parent) {
  setMinimumSize(TopographyPicture::sizeHint());
}

void TopographyPicture::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const double w = width();
  const double h = height();
  const double ground = h * 0.85;
  const double crestY = h * 0.45;
  const double crestX = w * 0.5;

  painter.drawText(QRectF(0, 0, w, h * 0.15), Qt::AlignCenter, property("heading").toString());

  // The ground line: up from the left to the crest, then on level (escarpment) or down
  // again (ridge or hill).
  QPainterPath profile;
  profile.moveTo(0, ground);
  profile.lineTo(w * 0.2, ground);
  profile.cubicTo(w * 0.35, ground, w * 0.4, crestY, crestX, crestY);
  if (property("ridge").toBool()) {
    profile.cubicTo(w * 0.6, crestY, w * 0.65, ground, w * 0.8, ground);
    profile.lineTo(w, ground);
  } else {
    profile.lineTo(w, crestY);
  }
  painter.setPen(QPen(Qt::darkGreen, 2));
  painter.drawPath(profile);

  // The wind's profile at the crest, longer than the approach flow: the speed-up.
  painter.setPen(QPen(Qt::darkBlue, 1));
  for (int i = 1; i <= 3; ++i) {
    const double y = crestY - i * h * 0.08;
    painter.drawLine(QPointF(crestX, y), QPointF(crestX + w * 0.05 * (i + 1), y));
    const double approachY = ground - i * h * 0.08;
    painter.drawLine(QPointF(w * 0.03, approachY),
                     QPointF(w * 0.03 + w * 0.03 * (i + 1), approachY));
  }
  painter.setPen(Qt::black);
  painter.drawText(QPointF(crestX + w * 0.23, crestY - h * 0.14), tr("Speed-up"));
  painter.drawText(QPointF(w * 0.08, ground + h * 0.12), tr("(Upwind)"));
  painter.drawText(QPointF(w * 0.72, ground + h * 0.12), tr("(Downwind)"));
}

}  // namespace gustline
