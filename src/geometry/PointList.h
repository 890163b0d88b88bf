#pragma once

#include <vector>

#include "geometry/PointClass.h"

namespace gustline::geometry {

// An ordered list of points. As a line list it holds two entries per line: entries 0-1 are
// the first line, 2-3 the second, and so on.
using PointList = std::vector<PointClass>;

// Points are the same when both coordinates are the same value by their printed form.
bool SamePoint(const PointClass& a, const PointClass& b);

// One point per coordinate pair, in order; empty when the two columns differ in length.
PointList MakePointList(const std::vector<double>& x, const std::vector<double>& y);

// The lines of the outline's boundaries. A boundary closes on a point equal to its first;
// no line joins a closing point to the next boundary's first point.
PointList MakeLineList(const std::vector<double>& x, const std::vector<double>& y);

// Drops each entry that is the same point as the entry after it.
void RemoveRepeats(PointList& list);

// Sorts by X with key 0 and by Y with key 1, ascending.
void SortPointsBy(PointList& list, int key);

// Sorts ascending.
void SortNumbers(std::vector<double>& numbers);

}  // namespace gustline::geometry
