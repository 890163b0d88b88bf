#include "buildings/Fig610Values.h"

#include "core/workbook/NamedCells.h"
#include "core/workbook/NumberFormat.h"
#include "ui/rules/FieldNumber.h"

namespace gustline {

Fig610Values LoadFig610(wb::Workbook& project) {
  Fig610Values v;
  v.roofAngle = wb::FormatNumber(wb::ReadNamedNumber(project, "Figure64Angle"), "0.00");
  v.hasParapet = wb::ReadNamedInt(project, "HasParapet") == 1;
  v.parapetElevation =
      wb::FormatNumber(wb::ReadNamedNumber(project, "ParapetElevation"), "General");
  return v;
}

void SaveFig610(wb::Workbook& project, const Fig610Values& v) {
  wb::WriteNamedNumber(project, "Figure64Angle", rules::FieldValue(v.roofAngle));
  wb::WriteNamedInt(project, "HasParapet", v.hasParapet ? 1 : 0);
  wb::WriteNamedNumber(project, "ParapetElevation", rules::FieldValue(v.parapetElevation));
}

}  // namespace gustline
