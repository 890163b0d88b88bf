#pragma once

#include <functional>
#include <string>
#include <vector>

#include "geometry/HeightList.h"

namespace gustline {
class Prompt;
}

namespace gustline::wb {
class Workbook;
}

namespace gustline::geometry {

class CutRandom;

// What the area calculation needs besides the project.
struct AreaContext {
  Prompt& prompt;
  CutRandom& random;
  // "Ignore area calculation when calculating wind forces." of the Geometry dialog.
  bool ignoreArea = false;
  // Shows a text in status panel 1 and returns the text it replaces; none without a window.
  std::function<std::string(const std::string&)> showStatus;
};

// The projected area of the outline (X and Y in feet, a boundary closed by repeating its
// first point) inside each interval of the table, by the same index. Warnings go through
// the prompt; when the outline cannot be used every area is 0.
std::vector<float> OutlineIntervalAreas(const std::vector<double>& x, const std::vector<double>& y,
                                        double height, const std::vector<HeightInterval>& table,
                                        Prompt& prompt, CutRandom& random);

// The areas as the report reads them: each "0.00" and one blank, the highest interval first
// with `Order` 0, the lowest first with `Order` 1, nothing for any other order. Warns when
// the area written last is negative.
std::string IntervalAreasText(const std::vector<float>& areas, int order, Prompt& prompt);

// The projected areas by height interval of the outline on `Sheet2` of the project, as text.
// Reads `Height`, `Interval`, `UserIntervals` and `Order`; writes nothing to the project.
std::string GetIntervalAreas(wb::Workbook& project, const AreaContext& context);

// The net area of the whole outline: the largest boundary less all the others.
float GetTotalArea(const std::vector<double>& x, const std::vector<double>& y, Prompt& prompt);

}  // namespace gustline::geometry
