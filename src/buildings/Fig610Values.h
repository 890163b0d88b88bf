#pragma once

#include <string>

#include "ui/rules/FormField.h"

namespace gustline::wb {
class Workbook;
}

namespace gustline {

// The fields of the Figure 6-10 dialog as it shows them.
struct Fig610Values {
  std::string roofAngle;
  bool hasParapet = false;
  std::string parapetElevation;
};

// The controls of the form; the slider Slider1 fills the roof angle.
inline constexpr rules::FormField<Fig610Values> kFig610Fields[] = {
    {.control = "Text1",
     .member = &Fig610Values::roofAngle,
     .cell = "Figure64Angle",
     .rule = ">=0,<=90",
     .format = "0.00"},
    {.control = "Check1", .member = &Fig610Values::hasParapet, .cell = "HasParapet"},
    {.control = "Text2", .member = &Fig610Values::parapetElevation, .cell = "ParapetElevation"},
};

Fig610Values LoadFig610(wb::Workbook& project);
void SaveFig610(wb::Workbook& project, const Fig610Values& values);

}  // namespace gustline
