#pragma once

#include "ui/rules/FormField.h"

namespace gustline::wb {
class Workbook;
}

namespace gustline {

// The Minimum Pressure dialog: whether the 10 psf floor of section 6.1.4 applies.
struct MinPressureValues {
  bool useMinimum = false;
};

inline constexpr rules::FormField<MinPressureValues> kMinPressureFields[] = {
    {.control = "Check1", .member = &MinPressureValues::useMinimum, .cell = "UseMinWindPressure"},
};

MinPressureValues LoadMinPressure(wb::Workbook& project);
void SaveMinPressure(wb::Workbook& project, const MinPressureValues& values);

}  // namespace gustline
