#include "geometry/PointClass.h"

#include <cmath>

#include "core/Prompt.h"
#include "geometry/SingleText.h"

namespace gustline::geometry {

void PointClass::RotateXY(double angle) {
  const double cosine = std::cos(angle);
  const double sine = std::sin(angle);
  const double x = X;
  const double y = Y;
  X = static_cast<float>(x * cosine - y * sine);
  Y = static_cast<float>(x * sine + y * cosine);
}

void PointClass::Show(Prompt& prompt) const {
  prompt.Show({"Point Coordinates", "X : " + SingleText(X) + "\r\nY : " + SingleText(Y) + "\r\n",
               PromptIcon::Information, PromptButtons::Ok});
}

void PointClass::SetPointXY(float x, float y) {
  X = x;
  Y = y;
}

void PointClass::GetPointXY(float& x, float& y) const {
  x = X;
  y = Y;
}

void PointClass::Copy(const PointClass& other) {
  X = other.X;
  Y = other.Y;
}

void PointClass::GetPointX(float& x) const {
  x = X;
}

void PointClass::GetPointY(float& y) const {
  y = Y;
}

}  // namespace gustline::geometry
