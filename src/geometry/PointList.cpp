#include "geometry/PointList.h"

#include "geometry/MiddlePivotSort.h"
#include "geometry/SingleText.h"

namespace gustline::geometry {

bool SamePoint(const PointClass& a, const PointClass& b) {
  return SameValue(a.X, b.X) && SameValue(a.Y, b.Y);
}

PointList MakePointList(const std::vector<double>& x, const std::vector<double>& y) {
  PointList points;
  if (x.size() != y.size()) return points;
  points.reserve(x.size());
  for (std::size_t i = 0; i < x.size(); ++i)
    points.emplace_back(static_cast<float>(x[i]), static_cast<float>(y[i]));
  return points;
}

PointList MakeLineList(const std::vector<double>& x, const std::vector<double>& y) {
  const PointList points = MakePointList(x, y);
  PointList lines;
  if (points.empty()) return lines;
  PointClass start = points.front();
  for (std::size_t i = 0; i + 1 < points.size(); ++i) {
    lines.push_back(points[i]);
    lines.push_back(points[i + 1]);
    if (SamePoint(points[i + 1], start)) {
      ++i;
      if (i + 1 < points.size()) start = points[i + 1];
    }
  }
  return lines;
}

void RemoveRepeats(PointList& list) {
  std::size_t kept = 0;
  for (std::size_t i = 0; i < list.size(); ++i)
    if (i + 1 == list.size() || !SamePoint(list[i], list[i + 1])) list[kept++] = list[i];
  list.resize(kept);
}

void SortPointsBy(PointList& list, int key) {
  if (key == 0)
    MiddlePivotSort(list, [](const PointClass& a, const PointClass& b) { return a.X < b.X; });
  else
    MiddlePivotSort(list, [](const PointClass& a, const PointClass& b) { return a.Y < b.Y; });
}

void SortNumbers(std::vector<double>& numbers) {
  MiddlePivotSort(numbers, [](double a, double b) { return a < b; });
}

}  // namespace gustline::geometry
