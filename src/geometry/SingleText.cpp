#include "geometry/SingleText.h"

#include <algorithm>
#include <cmath>
#include <cstdio>

namespace gustline::geometry {

std::string SingleText(float value) {
  if (value == 0) return "0";
  char buffer[32];
  std::snprintf(buffer, sizeof buffer, "%.7G", static_cast<double>(value));
  return buffer;
}

bool SameValue(float a, float b) {
  if (a == b) return true;
  // Texts of seven digits can agree only within a relative 1e-6; farther apart they differ,
  // and the joining walks need this answer fast.
  const double difference = std::fabs(static_cast<double>(a) - b);
  const double scale =
      std::max(std::fabs(static_cast<double>(a)), std::fabs(static_cast<double>(b)));
  if (difference > 2e-6 * scale) return false;
  return SingleText(a) == SingleText(b);
}

}  // namespace gustline::geometry
