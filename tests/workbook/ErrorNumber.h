#pragma once

#include <functional>

#include "core/workbook/value/FacilityError.h"

namespace gustline::wb {

// The number of the FacilityError that the action raises, or 0 when it raises none.
inline int ErrorNumberOf(const std::function<void()>& action) {
  try {
    action();
  } catch (const FacilityError& error) {
    return error.Number();
  }
  return 0;
}

}  // namespace gustline::wb
