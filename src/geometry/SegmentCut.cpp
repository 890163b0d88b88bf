#include "geometry/SegmentCut.h"

#include <algorithm>
#include <cmath>

namespace gustline::geometry {
namespace {

constexpr double kPi = 3.14159265358979;

// A line through two points as a x + b y + c = 0, its constant taken at the second point.
struct LineCoefficients {
  float a;
  float b;
  float c;
};

LineCoefficients CoefficientsOf(const PointClass& p1, const PointClass& p2) {
  if (p1.X != p2.X) {
    const float a = (p2.Y - p1.Y) / (p2.X - p1.X);
    return {a, -1.0f, p2.Y - a * p2.X};
  }
  if (p1.X == 0) return {1.0f, 0.0f, 0.0f};
  return {1.0f / p1.X, 0.0f, -1.0f};
}

float Determinant2(double a11, double a12, double a21, double a22) {
  return static_cast<float>(a11 * a22 - a21 * a12);
}

double Angle(const PointClass& p1, const PointClass& p2) {
  const double dx = static_cast<double>(p2.X) - p1.X;
  const double dy = static_cast<double>(p2.Y) - p1.Y;
  if (dx == 0) return dy >= 0 ? kPi / 2 : -kPi / 2;
  return std::atan(dy / dx);
}

// Whether a point of the segment's line lies between its ends, by the X values of all three
// turned onto the segment's direction.
bool OnSegment(const PointClass& p1, const PointClass& p2, const PointClass& candidate) {
  const double angle = -Angle(p1, p2);
  PointClass end1 = p1;
  PointClass end2 = p2;
  PointClass point = candidate;
  end1.RotateXY(angle);
  end2.RotateXY(angle);
  point.RotateXY(angle);
  const float lesser = std::min(end1.X, end2.X);
  const float greater = std::max(end1.X, end2.X);
  return !(point.X < lesser) && !(point.X > greater);
}

}  // namespace

std::optional<PointClass> IntersectSegments(const PointClass& a1, const PointClass& a2,
                                            const PointClass& b1, const PointClass& b2) {
  const LineCoefficients first = CoefficientsOf(a1, a2);
  const LineCoefficients second = CoefficientsOf(b1, b2);
  const float d = Determinant2(first.a, first.b, second.a, second.b);
  if (d == 0) return std::nullopt;
  const PointClass candidate(Determinant2(-first.c, first.b, -second.c, second.b) / d,
                             Determinant2(first.a, -first.c, second.a, -second.c) / d);
  if (!OnSegment(a1, a2, candidate) || !OnSegment(b1, b2, candidate)) return std::nullopt;
  return candidate;
}

SegmentClass ClassifySegment(const PointClass& p1, const PointClass& p2, const PointClass& p3,
                             const PointClass& p4, const PointClass& a, const PointClass& b) {
  const float lowerY = p1.Y;
  const float upperY = p3.Y;
  SegmentClass result;
  if (a.Y > upperY && b.Y > upperY) return result;
  if (a.Y < lowerY && b.Y < lowerY) return result;
  if (!(a.Y < lowerY) && !(b.Y < lowerY) && a.Y < upperY && b.Y < upperY) {
    result.code = SegmentCode::Inside;
    return result;
  }
  const auto lower = IntersectSegments(p1, p2, a, b);
  const auto upper = IntersectSegments(p3, p4, a, b);
  if (lower) result.lower = *lower;
  if (upper) result.upper = *upper;
  const bool aInside = a.Y > lowerY && a.Y < upperY;
  if (lower && upper)
    result.code = SegmentCode::CrossesBoth;
  else if (lower)
    result.code = aInside ? SegmentCode::LowerFromA : SegmentCode::LowerToB;
  else if (upper)
    result.code = aInside ? SegmentCode::UpperFromA : SegmentCode::UpperToB;
  else
    result.code = SegmentCode::Unresolved;
  return result;
}

}  // namespace gustline::geometry
