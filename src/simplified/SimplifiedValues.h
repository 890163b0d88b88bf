#pragma once

#include <optional>
#include <string>

#include "core/Prompt.h"
#include "ui/rules/FormField.h"

namespace gustline::wb {
class Workbook;
}

namespace gustline {

// The inputs of the simplified procedure as its dialog holds them.
struct SimplifiedValues {
  int system = 0;          // 0 main wind-force system, 1 components and cladding
  int categoryOption = 0;  // I, II, III, IV
  bool hurricane = false;  // "Hurricane Prone Region with V >100", which counts for I only
  int exposure = 2;        // B, C, D as 1 to 3
  std::string windSpeed;
  std::string roofAngle;
  std::string height;
};

// The controls of the form; the text boxes with a rule are checked at OK in this order.
// The height has no rule: OK tests it itself.
inline constexpr rules::FormField<SimplifiedValues> kSimplifiedFields[] = {
    {.control = "Option1", .member = &SimplifiedValues::system},
    {.control = "Option3", .member = &SimplifiedValues::categoryOption},
    {.control = "ChkHurricane", .member = &SimplifiedValues::hurricane},
    {.control = "Option4", .member = &SimplifiedValues::exposure, .firstOption = 1},
    {.control = "Text6",
     .member = &SimplifiedValues::roofAngle,
     .cell = "SimplifiedAngle",
     .rule = ">=0,<=45",
     .format = "0.00"},
    {.control = "Text1",
     .member = &SimplifiedValues::windSpeed,
     .cell = "WindSpeed",
     .rule = ">=85.00,<=170.00",
     .format = "0.00"},
    {.control = "Text2", .member = &SimplifiedValues::height, .cell = "Height"},
};

// The tallest building the procedure takes, ft (section 6.4.1.1).
inline constexpr double kSimplifiedHeightLimit = 60;

// The dialog on opening: a system above 1 is read as components and cladding, and exposure
// A, which the procedure does not offer, as B.
SimplifiedValues LoadSimplified(wb::Workbook& project);

// What leaving the dialog writes, in this order: System, WindSpeed, Red_Fact and Trib_Area
// (0, nothing sets them), SimplifiedAngle, Category, Exposure, the switch B124 = 1, Height.
void SaveSimplified(wb::Workbook& project, const SimplifiedValues& values);

// The refusal of OK before the field rules: a height above 60 ft, or an effective wind area
// of 0 in any zone, which OK tests for either system.
std::optional<Message> SimplifiedOkError(wb::Workbook& project, const SimplifiedValues& values);

}  // namespace gustline
