#pragma once

#include <QDialog>
#include <memory>

#include "ui/MapZoom.h"

namespace Ui {
class MapFrm;
}

namespace gustline {

class MapImage;

// The basic wind speed map, Figure 6-1, in a scrolling frame with its zoom box, Zoom in, Zoom
// out and Close. It only shows: it has no project to write to, and a click on the map does
// nothing. Created once and hidden on Close, it keeps its zoom between showings.
class MapFrm : public QDialog {
  Q_OBJECT

 public:
  explicit MapFrm(QWidget* parent = nullptr);
  ~MapFrm() override;

  // The size the map is shown at, and that of the frame it scrolls in.
  MapSize PictureSize() const;
  MapSize FrameSize() const;
  // The stored 100 per cent size.
  MapSize NaturalSize() const { return natural_; }

  void Command1_Click();  // Zoom in
  void Command2_Click();  // Zoom out
  // A zoom box item chosen, or a text typed and Enter: the box then reads it with "%".
  void Combo1_Click(const QString& text);
  void Combo1_Enter();

 private:
  void Apply(const MapZoom& zoom);

  std::unique_ptr<Ui::MapFrm> ui_;
  MapImage* image_ = nullptr;
  MapSize natural_;
};

// The "View map..." buttons: the map viewer of the window that `caller` belongs to, created
// on first use, shown over the caller until it is closed.
MapFrm& ShowMapFrm(QWidget* caller);

}  // namespace gustline
