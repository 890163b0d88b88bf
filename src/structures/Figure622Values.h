#pragma once

#include <string>

#include "ui/rules/FormField.h"

namespace gustline::wb {
class Workbook;
}

namespace gustline {

// The fields of the dialog of Figure 6-23, trussed towers (the dialog keeps the name and
// title of Figure 6-22): the cross-section, the wind direction, the member shape, and the
// solidity ratio e of each height interval.
struct Figure622Values {
  int crossSection = 0;  // 0 square, 1 triangle
  int direction = 0;     // 0 normal to a face, 1 along a diagonal
  int memberShape = 0;   // 0 flat-sided, 1 round
  std::string ratios;    // comma list by interval
};

// The controls of the form, each an option pair: CrossOption_0 and _1, DirectionOption_0
// and _1 in the frame WindDirectionFrame, ShapeOption_0 and _1. The ratios are the grid
// F1Tower's.
inline constexpr rules::FormField<Figure622Values> kFigure622Fields[] = {
    {.control = "CrossOption", .member = &Figure622Values::crossSection, .cell = "Table610Cross"},
    {.control = "DirectionOption", .member = &Figure622Values::direction, .cell = "Table610Dir"},
    {.control = "ShapeOption", .member = &Figure622Values::memberShape, .cell = "Table610Shape"},
};

// The wind direction counts for square towers only: a triangle greys the frame and keeps
// the choice.
inline bool WindDirectionEnabled(int crossSection) {
  return crossSection == 0;
}

Figure622Values LoadFigure622(wb::Workbook& project);
void SaveFigure622(wb::Workbook& project, const Figure622Values& values);

}  // namespace gustline
