#pragma once

namespace gustline {
class Prompt;
}

namespace gustline::geometry {

// A point of a structure's outline, X across and Y up, in feet and single precision.
class PointClass {
 public:
  float X = 0;
  float Y = 0;

  PointClass() = default;
  PointClass(float x, float y) : X(x), Y(y) {}

  // Rotates the point about the origin by `angle` radians.
  void RotateXY(double angle);
  // An information box titled "Point Coordinates" with both values.
  void Show(Prompt& prompt) const;
  void SetPointXY(float x, float y);
  void GetPointXY(float& x, float& y) const;
  void Copy(const PointClass& other);
  void GetPointX(float& x) const;
  void GetPointY(float& y) const;
};

}  // namespace gustline::geometry
