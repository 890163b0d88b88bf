#pragma once

class QLineEdit;
class QSlider;

namespace gustline {

// The roof angle box and its slider follow each other: the box shows the slider's position
// with two decimals, and the slider takes the whole part of what the box holds, without
// writing it back over the box.
void FollowRoofAngle(QLineEdit& box, QSlider& slider);

}  // namespace gustline
