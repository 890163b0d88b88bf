#include "ui/UnitsValues.h"

#include "ui/rules/FieldCells.h"

namespace gustline {

UnitsValues LoadUnits(wb::Workbook& project) {
  UnitsValues v;
  rules::LoadFields(project, kUnitsFields, v);
  for (int* unit : {&v.pressure, &v.force, &v.moment}) {
    if (*unit != 1) *unit = 0;
  }
  return v;
}

void SaveUnits(wb::Workbook& project, const UnitsValues& v) {
  rules::SaveFields(project, kUnitsFields, v);
}

}  // namespace gustline
