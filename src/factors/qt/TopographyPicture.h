#pragma once

#include <QWidget>

namespace gustline {

// One picture of the topography form: the profile of an escarpment, or of a ridge or hill,
// with the wind's speed-up over the crest. The form sets the dynamic properties "heading"
// (the caption over the picture) and "ridge" (true for the two-sided profile).
class TopographyPicture : public QWidget {
  Q_OBJECT

 public:
  explicit TopographyPicture(QWidget* parent = nullptr);
  QSize sizeHint() const override { return {420, 170}; }

 protected:
  void paintEvent(QPaintEvent* event) override;
};

}  // namespace gustline
