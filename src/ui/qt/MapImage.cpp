#include "ui/qt/MapImage.h"

#include <QPainter>

// The resources of a static library are registered by the program that uses them.
static void RegisterMapResource() {
  Q_INIT_RESOURCE(WindSpeedMap);
}

namespace gustline {

MapImage::MapImage(QWidget* parent) : QWidget(parent) {
  RegisterMapResource();
  renderer_.load(QStringLiteral(":/map/WindSpeedMap.svg"));
  setObjectName(QStringLiteral("Image1"));
}

QSize MapImage::PictureSize() const {
  return renderer_.defaultSize();
}

void MapImage::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  renderer_.render(&painter, QRectF(rect()));
}

}  // namespace gustline
