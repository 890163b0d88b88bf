#pragma once

#include <string>
#include <string_view>

namespace gustline {
class Prompt;
}

namespace gustline::rules {

inline constexpr const char* kRangeErrorTitle = "     Range Error    ";

// Tests a field's text against a rule such as ">=0,<=45": one or two tokens, each an
// operator ("<=", ">=", "<>", "=", "<", ">") joined to a number, all of which must hold.
// A failure shows its own critical box and gives false; an empty rule always passes.
bool CheckRule(Prompt& prompt, std::string_view rule, std::string_view text);

// The older direct range check of the geometry dialog. It trims the text in place and
// refuses anything but digits and points; it sets or clears the range error flag.
bool CheckRange(Prompt& prompt, double limit1, double limit2, std::string& text);

// Set by the last CheckRange that failed, cleared by one that passed.
bool RangeErrorFlag();

}  // namespace gustline::rules
