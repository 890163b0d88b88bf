#pragma once

#include "ui/rules/FormField.h"

namespace gustline::wb {
class Workbook;
}

namespace gustline {

// The three unit choices of the Units dialog, each the index of its option in the group:
// `Pressure` 0 psf, 1 ksf; `Force` 0 lbs, 1 kips; `Moment` 0 lb-ft, 1 kip-ft.
struct UnitsValues {
  int pressure = 0;
  int force = 0;
  int moment = 0;
};

inline constexpr rules::FormField<UnitsValues> kUnitsFields[] = {
    {.control = "Option1", .member = &UnitsValues::pressure, .cell = "Pressure"},
    {.control = "Option2", .member = &UnitsValues::force, .cell = "Force"},
    {.control = "Option3", .member = &UnitsValues::moment, .cell = "Moment"},
};

// Reads the three indices; one that names no option is taken as the first.
UnitsValues LoadUnits(wb::Workbook& project);

// Writes the three indices; the unit block of Sheet3 follows at the next calculation.
void SaveUnits(wb::Workbook& project, const UnitsValues& values);

}  // namespace gustline
