#pragma once

#include <string>
#include <string_view>

namespace gustline {

// ASCII upper case, as file names and captions are shown.
std::string UpperCase(std::string_view text);
// The text without leading and trailing blanks.
std::string_view TrimBlanks(std::string_view text);

}  // namespace gustline
