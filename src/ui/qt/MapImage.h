#pragma once

#include <QSvgRenderer>
#include <QWidget>

namespace gustline {

// Image1 of the map viewer: the wind speed map, drawn from its vector picture at whatever
// size the widget has, so that every zoom is sharp. The picture is read once.
class MapImage : public QWidget {
  Q_OBJECT

 public:
  explicit MapImage(QWidget* parent = nullptr);
  // The picture's own size, in pixels.
  QSize PictureSize() const;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QSvgRenderer renderer_;
};

}  // namespace gustline
