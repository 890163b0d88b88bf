#pragma once

#include <string>

namespace gustline::geometry {

// The default text of a single: seven significant digits at most, "0" for either zero.
std::string SingleText(float value);

// Two singles are the same value when their default texts are equal: no numeric tolerance.
bool SameValue(float a, float b);

}  // namespace gustline::geometry
