#pragma once

#include <string>

#include "ui/rules/FormField.h"

namespace gustline::wb {
class Workbook;
}

namespace gustline {

// The fields of the dialog of Figure 6-21, chimneys, tanks and similar structures (not the
// free roofs of Fig619): the cross-section, the factor of section 6.5.15.1, and the
// horizontal dimension D of each height interval.
struct Figure619Values {
  int crossSection = 0;  // the rows of Figure 6-21, square normal to its face first
  bool use6515 = false;
  std::string afBhRatio;  // Af/Bh of section 6.5.15.1
  std::string diameters;  // ft, comma list by interval
};

inline constexpr int kFigure619CrossSections = 7;

// The controls of the form: the option array CrossSectionOption_0 to CrossSectionOption_6,
// the check box of section 6.5.15.1 and the Af/Bh box it enables. The diameters are the
// grid F1Chimney's.
inline constexpr rules::FormField<Figure619Values> kFigure619Fields[] = {
    {.control = "Use6515CheckBox", .member = &Figure619Values::use6515, .cell = "Use_6_5_15_1"},
    {.control = "AfBhRatioEditBox",
     .member = &Figure619Values::afBhRatio,
     .cell = "AfBhRatio",
     .rule = ">=0.0,<=1.0",
     .format = "0.00"},
    {.control = "CrossSectionOption", .member = &Figure619Values::crossSection, .cell = "Table67"},
};

Figure619Values LoadFigure619(wb::Workbook& project);
void SaveFigure619(wb::Workbook& project, const Figure619Values& values);

}  // namespace gustline
