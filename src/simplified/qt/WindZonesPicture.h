#pragma once

#include <QWidget>

namespace gustline {

// The zones of components and cladding of Figure 6-3, drawn schematically: the roof in plan
// with its corner zones 3, edge strips 2 and interior 1, and a wall with its end zones 5 and
// interior 4, each strip of width a.
class WindZonesPicture : public QWidget {
  Q_OBJECT

 public:
  explicit WindZonesPicture(QWidget* parent = nullptr);
  QSize sizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;
};

}  // namespace gustline
