#pragma once

#include <string>

#include "ui/rules/FormField.h"

namespace gustline::wb {
class Workbook;
}

namespace gustline {

// The fields of the dialog of Figure 6-22, open signs and lattice frameworks (the dialog
// keeps the name and title of Figure 6-21).
struct Figure621Values {
  int memberShape = 0;   // 0 flat-sided, 1 rounded
  std::string ratio;     // solidity e
  std::string diameter;  // of a rounded member, ft
};

// The controls of the form: the option pair Option1_0 and Option1_1 for the member shape,
// the ratio box Text1 and the diameter box Text2.
inline constexpr rules::FormField<Figure621Values> kFigure621Fields[] = {
    {.control = "Option1", .member = &Figure621Values::memberShape, .cell = "Table69Shape"},
    {.control = "Text1",
     .member = &Figure621Values::ratio,
     .cell = "Table69Ratio",
     .rule = ">=0,<=0.7",
     .format = "0.0000"},
    {.control = "Text2",
     .member = &Figure621Values::diameter,
     .cell = "Table69Dia",
     .rule = ">0,<=30",
     .format = "0.000"},
};

// The diameter counts for rounded members only; flat-sided ones grey its box and label.
inline bool MemberDiameterEnabled(int memberShape) {
  return memberShape == 1;
}

Figure621Values LoadFigure621(wb::Workbook& project);
void SaveFigure621(wb::Workbook& project, const Figure621Values& values);

}  // namespace gustline
