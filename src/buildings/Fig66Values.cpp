#include "buildings/Fig66Values.h"

#include "core/workbook/model/NamedCells.h"
#include "core/workbook/value/NumberFormat.h"
#include "ui/rules/FieldCells.h"
#include "ui/rules/FieldNumber.h"

namespace gustline {

Fig66Values LoadFig66(wb::Workbook& project) {
  Fig66Values v;
  rules::LoadFields(project, kFig66Fields, v);
  v.useQz = wb::ReadNamedInt(project, "Fig63UseQi") != 0;
  const double z = wb::ReadNamedNumber(project, "Fig63Z");
  v.z = wb::FormatNumber(z == 0 ? wb::ReadNamedNumber(project, "Height") : z, "General");
  v.table64 = wb::ReadNamedInt(project, "Table64");
  if (!QiChoiceEnabled(v.table64)) {
    v.useQz = false;
    wb::WriteNamedInt(project, "Fig63UseQi", 0);
  }
  return v;
}

void SaveFig66(wb::Workbook& project, const Fig66Values& v) {
  rules::SaveFields(project, kFig66Fields, v);
  if (wb::ReadNamedInt(project, "Table64") == 1) {
    wb::WriteNamedNumber(project, "Fig63Z", rules::FieldValue(v.z));
    wb::WriteNamedInt(project, "Fig63UseQi", v.useQz ? 1 : 0);
  } else {
    wb::WriteNamedNumber(project, "Fig63Z", wb::ReadNamedNumber(project, "Height"));
    wb::WriteNamedInt(project, "Fig63UseQi", 0);
  }
}

}  // namespace gustline
