#pragma once

#include <optional>
#include <string_view>

namespace gustline::rules {

// The number a field's text stands for, read as a conversion to double reads it: blanks
// around it, an optional sign, digits with one decimal point and an optional exponent.
// nullopt for an empty text or anything else.
std::optional<double> FieldNumber(std::string_view text);

// The number of a text, or 0 when it holds none: how a field without a rule is written.
double FieldValue(std::string_view text);

}  // namespace gustline::rules
