#pragma once

#include <optional>
#include <string>

#include "core/Prompt.h"
#include "structures/FreeRoof.h"
#include "ui/rules/FormField.h"

namespace gustline::wb {
class Workbook;
}

namespace gustline {

// The fields of the dialog of Figures 6-18A to 6-18D, the free roofs of open buildings for
// the main wind-force resisting system, as it shows them.
struct Figure618Values {
  std::string angle;
  int roofType = FreeRoof::kMonoslope;
  bool note5Applies = false;  // Note 5 of Figure 6-18D
};

// The controls of the form. The option array RoofTypeOption lists Monoslope, Pitched,
// Troughed and Free, RoofTypeOption_0 to RoofTypeOption_3; the slider RoofAngleSlider
// follows the angle box.
inline constexpr rules::FormField<Figure618Values> kFigure618Fields[] = {
    {.control = "RoofAngleEditBox",
     .member = &Figure618Values::angle,
     .cell = kFreeRoofAngleCell,
     .rule = kFreeRoofAngleRule,
     .format = kFreeRoofAngleFormat},
    {.control = "RoofTypeOption",
     .member = &Figure618Values::roofType,
     .cell = kFreeRoofTypeCell,
     .firstOption = FreeRoof::kMonoslope},
    {.control = "Note5CheckBox", .member = &Figure618Values::note5Applies, .cell = "Note5Applies"},
};

// Note 5 of Figure 6-18D is offered for free roofs of all shapes only; the other roof types
// grey the box and keep its tick.
inline bool Note5Enabled(int roofType) {
  return roofType == FreeRoof::kAllShapes;
}

Figure618Values LoadFigure618(wb::Workbook& project);
void SaveFigure618(wb::Workbook& project, const Figure618Values& values);

// The box with which OK refuses values whose angle has passed its rule, nullopt for values
// that may be written: pitched and troughed roofs start at 7.5 degrees, and Note 5 of
// Figure 6-18D asks an angle below 5 degrees and a `Height` / `Width` of 0.05 to 0.25.
std::optional<Message> Figure618Refusal(const Figure618Values& values, double height, double width);

}  // namespace gustline
