#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace gustline::wb {

// The display text of a serial date (days since 30 December 1899, the fraction the time
// of day) in a date format such as "mmmm d, yyyy", "mm/dd/yy" or "h:mm AM/PM", or the
// overflow marks for a serial outside the calendar; nullopt when the format section holds no
// date or time code, so that it is a number format.
std::optional<std::string> FormatDate(double serial, std::string_view section);

}  // namespace gustline::wb
