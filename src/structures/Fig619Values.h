#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "core/Prompt.h"
#include "structures/FreeRoof.h"
#include "ui/rules/FormField.h"

namespace gustline::wb {
class Workbook;
}

namespace gustline {

// The fields of the dialog of Figures 6-19A to 6-19C, the components and cladding of free
// roofs of open buildings, as it shows them.
struct Fig619Values {
  std::string angle;
  int roofType = FreeRoof::kMonoslope;
  std::string dimensionA;  // ft
  std::string zone1Area;   // effective wind areas, sq ft
  std::string zone2Area;
  std::string zone3Area;
};

inline constexpr std::string_view kFig619Format = "####.00";

// The controls of the form. The option array RoofTypeOption lists Monoslope, Pitched and
// Troughed, RoofTypeOption_0 to RoofTypeOption_2; the slider RoofAngleSlider follows the
// angle box. The boxes carry their limits, but OK writes them unchecked: no cell is limited
// by this dialog.
inline constexpr rules::FormField<Fig619Values> kFig619Fields[] = {
    {.control = "RoofAngleEditBox",
     .member = &Fig619Values::angle,
     .cell = kFreeRoofAngleCell,
     .rule = kFreeRoofAngleRule,
     .format = kFreeRoofAngleFormat},
    {.control = "RoofTypeOption",
     .member = &Fig619Values::roofType,
     .cell = kFreeRoofTypeCell,
     .firstOption = FreeRoof::kMonoslope},
    {.control = "Dimension_a_EditBox",
     .member = &Fig619Values::dimensionA,
     .cell = "Dimension_a",
     .rule = ">=0",
     .format = kFig619Format},
    {.control = "Zone1AreaEditBox",
     .member = &Fig619Values::zone1Area,
     .cell = "Zone1Area",
     .rule = ">0",
     .format = kFig619Format},
    {.control = "Zone2AreaEditBox",
     .member = &Fig619Values::zone2Area,
     .cell = "Zone2Area",
     .rule = ">0",
     .format = kFig619Format},
    {.control = "Zone3AreaEditBox",
     .member = &Fig619Values::zone3Area,
     .cell = "Zone3Area",
     .rule = ">0",
     .format = kFig619Format},
};

Fig619Values LoadFig619(wb::Workbook& project);
void SaveFig619(wb::Workbook& project, const Fig619Values& values);

// The box that opening the dialog gives for a roof type it has no button for, such as the
// free roof of all shapes chosen in the dialog of Figure 6-18; nullopt for Monoslope,
// Pitched and Troughed.
std::optional<Message> Fig619RoofTypeError(int roofType);

}  // namespace gustline
