#include "geometry/OutlineBoundaries.h"

#include "core/ProcessState.h"
#include "core/workbook/model/Workbook.h"

namespace gustline::geometry {

std::vector<Boundary> GridBoundaries(wb::Workbook& grid) {
  std::vector<Boundary> boundaries;
  bool inRun = false;
  const int lastRow = grid.LastRow();
  for (int row = 1; row <= lastRow; ++row) {
    if (grid.CellValue(row, 1).IsEmpty()) {
      inRun = false;
      continue;
    }
    if (!inRun) boundaries.emplace_back();
    inRun = true;
    boundaries.back().push_back({grid.CellNumber(row, 1), grid.CellNumber(row, 2)});
  }
  return boundaries;
}

std::optional<Message> UndefinedGeometry(wb::Workbook& grid) {
  if (grid.LastRow() != 0 || grid.LastCol() != 0) return std::nullopt;
  return Message{"Information",
                 "Enter X-Y coordinates." + std::string(kCrLf) + "Geometry  is undefined!!!",
                 PromptIcon::Stop, PromptButtons::Ok};
}

}  // namespace gustline::geometry
