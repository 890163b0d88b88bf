#pragma once

class QLineEdit;
class QSlider;

namespace gustline::rules {

// An angle box and its slider follow each other: the box shows the slider's position with
// two decimals, and the slider takes the whole part of the box's number, within its range,
// without writing it back over the box. A box without a number puts the slider at 0.
void FollowAngle(QLineEdit& box, QSlider& slider);

}  // namespace gustline::rules
