#pragma once

#include <string>
#include <string_view>

#include "core/workbook/value/Value.h"

namespace gustline::wb {

// What a number shows when its format cannot show it, as a negative date or one after
// 31 December 9999: marks that a renderer widens to fill the cell, as for a number too wide.
inline constexpr std::string_view kOverflowMarks = "########";

// The display text of a number in a number format: "General", "0", "0.00", "#,###",
// "#,##0.00", "0.00E+00", "0%", sections split at ";", literal text in quotes; a section
// with date codes ("mmmm d, yyyy", "h:mm AM/PM") shows the number as a serial date.
std::string FormatNumber(double number, std::string_view format);

// The display text of any value: numbers by the format, texts as they are, "TRUE"/"FALSE",
// error texts, and nothing for an empty cell.
std::string DisplayText(const Value& value, std::string_view format);

}  // namespace gustline::wb
