#pragma once

#include <optional>
#include <vector>

#include "core/Prompt.h"

namespace gustline::wb {
class Workbook;
}

namespace gustline::geometry {

struct PlotPoint {
  double x = 0;
  double y = 0;
};

// One boundary of an outline as the viewer draws it: a line through its points in order.
using Boundary = std::vector<PlotPoint>;

// The boundaries of a coordinate grid (X in column 1, Y in column 2 of its active sheet):
// rows 1 to the last used row, a run of rows with a value in column 1 being one boundary
// and a blank row ending it. Each boundary is its own series, never joined to the next.
std::vector<Boundary> GridBoundaries(wb::Workbook& grid);

// "Enter X-Y coordinates." over "Geometry  is undefined!!!" when the grid holds no cell.
std::optional<Message> UndefinedGeometry(wb::Workbook& grid);

}  // namespace gustline::geometry
