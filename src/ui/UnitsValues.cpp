#include "ui/UnitsValues.h"

#include "core/workbook/NamedCells.h"

namespace gustline {

UnitsValues LoadUnits(wb::Workbook& project) {
  UnitsValues v;
  v.pressure = wb::ReadNamedInt(project, "Pressure");
  v.force = wb::ReadNamedInt(project, "Force");
  v.moment = wb::ReadNamedInt(project, "Moment");
  return v;
}

void SaveUnits(wb::Workbook& project, const UnitsValues& v) {
  wb::WriteNamedInt(project, "Pressure", v.pressure);
  wb::WriteNamedInt(project, "Force", v.force);
  wb::WriteNamedInt(project, "Moment", v.moment);
}

}  // namespace gustline
