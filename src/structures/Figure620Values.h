#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "core/Prompt.h"
#include "ui/rules/FormField.h"

namespace gustline::wb {
class Workbook;
}

namespace gustline {

// The fields of the dialog of Figure 6-20, solid freestanding walls and solid signs, in feet.
struct Figure620Values {
  std::string horzDim;       // B
  std::string vertDim;       // s
  std::string height;        // h, to the top
  std::string solidRatio;    // epsilon, solid area to gross area
  std::string returnCorner;  // Lr, 0 without a return corner
};

inline constexpr std::string_view kFigure620Format = "0.00";

// The controls of the form, in their tab order.
inline constexpr rules::FormField<Figure620Values> kFigure620Fields[] = {
    {.control = "SignHorzDimEditBox",
     .member = &Figure620Values::horzDim,
     .cell = "SignHorzDim",
     .rule = ">0",
     .format = kFigure620Format},
    {.control = "SignVertDimEditBox",
     .member = &Figure620Values::vertDim,
     .cell = "SignVertDim",
     .rule = ">0",
     .format = kFigure620Format},
    {.control = "SignHeightEditBox",
     .member = &Figure620Values::height,
     .cell = "SignHeight",
     .rule = ">0",
     .format = kFigure620Format},
    {.control = "RatioOfSolidAreaToGrossAreaEditBox",
     .member = &Figure620Values::solidRatio,
     .cell = "RatioOfSolidAreaToGrossArea",
     .rule = ">=0.7,<=1",
     .format = kFigure620Format},
    {.control = "HorzDimOfReturnCornerEditBox",
     .member = &Figure620Values::returnCorner,
     .cell = "HorzDimOfReturnCorner",
     .rule = ">=0",
     .format = kFigure620Format},
};

Figure620Values LoadFigure620(wb::Workbook& project);
// The five dimensions, and the clearance ratio s/h, the aspect ratio B/s and the depth
// ratio Lr/s that the coefficients of the figure are read by.
void SaveFigure620(wb::Workbook& project, const Figure620Values& values);

// The box with which OK refuses a sign whose height to the top is below its vertical
// dimension; nullopt for values that may be written.
std::optional<Message> Figure620Refusal(const Figure620Values& values);

}  // namespace gustline
