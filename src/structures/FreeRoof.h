#pragma once

#include <string_view>

#include "core/Prompt.h"

namespace gustline {

// The roof of an open building's free roof, shared by the dialogs of Figures 6-18 and 6-19:
// one angle cell and one roof type cell for both. The cells keep the older table number.
inline constexpr std::string_view kFreeRoofAngleCell = "Table66Angle";
inline constexpr std::string_view kFreeRoofAngleRule = ">=0,<=45";
inline constexpr std::string_view kFreeRoofAngleFormat = "0.00";
inline constexpr std::string_view kFreeRoofTypeCell = "Table66RoofType";

// The roof types as `Table66RoofType` holds them; Figure 6-19 has no free roof of all shapes.
struct FreeRoof {
  static constexpr int kMonoslope = 1;
  static constexpr int kPitched = 2;
  static constexpr int kTroughed = 3;
  static constexpr int kAllShapes = 4;  // Figure 6-18D
};

// Note 5 of Figure 6-18D holds for 0.05 <= h/L <= 0.25: the box that refuses it elsewhere,
// in the dialog and at report time alike.
Message Note5RatioRefusal();

}  // namespace gustline
