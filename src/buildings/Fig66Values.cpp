#include "buildings/Fig66Values.h"

#include "core/workbook/NamedCells.h"
#include "core/workbook/NumberFormat.h"
#include "ui/rules/FieldNumber.h"

namespace gustline {
namespace {

std::string Formatted(wb::Workbook& project, std::string_view name, std::string_view format) {
  return wb::FormatNumber(wb::ReadNamedNumber(project, name), format);
}

}  // namespace

Fig66Values LoadFig66(wb::Workbook& project) {
  Fig66Values v;
  v.leewardLB = Formatted(project, "Figure63LB", "0.000");
  v.windwardAngle = Formatted(project, "Figure63WinAng", "0.00");
  v.leewardAngle = Formatted(project, "Figure63LeeAng", "0.00");
  v.area = Formatted(project, "Figure63Area", "0.00");
  v.hL = Formatted(project, "Figure63HL", "0.000");
  v.useQz = wb::ReadNamedInt(project, "Fig63UseQi") != 0;
  const double z = wb::ReadNamedNumber(project, "Fig63Z");
  v.z = wb::FormatNumber(z == 0 ? wb::ReadNamedNumber(project, "Height") : z, "General");
  v.hasParapet = wb::ReadNamedInt(project, "HasParapet") == 1;
  v.parapetElevation = Formatted(project, "ParapetElevation", "General");
  v.table64 = wb::ReadNamedInt(project, "Table64");
  if (!QiChoiceEnabled(v.table64)) {
    v.useQz = false;
    wb::WriteNamedInt(project, "Fig63UseQi", 0);
  }
  return v;
}

void SaveFig66(wb::Workbook& project, const Fig66Values& v) {
  using rules::FieldValue;
  wb::WriteNamedNumber(project, "Figure63LB", FieldValue(v.leewardLB));
  wb::WriteNamedNumber(project, "Figure63WinAng", FieldValue(v.windwardAngle));
  wb::WriteNamedNumber(project, "Figure63LeeAng", FieldValue(v.leewardAngle));
  wb::WriteNamedNumber(project, "Figure63Area", FieldValue(v.area));
  wb::WriteNamedNumber(project, "Figure63HL", FieldValue(v.hL));
  wb::WriteNamedNumber(project, "Fig63Z", FieldValue(v.z));
  wb::WriteNamedInt(project, "Fig63UseQi", v.useQz ? 1 : 0);
  wb::WriteNamedInt(project, "HasParapet", v.hasParapet ? 1 : 0);
  wb::WriteNamedNumber(project, "ParapetElevation", FieldValue(v.parapetElevation));
  if (wb::ReadNamedInt(project, "Table64") != 1) {
    wb::WriteNamedNumber(project, "Fig63Z", wb::ReadNamedNumber(project, "Height"));
    wb::WriteNamedInt(project, "Fig63UseQi", 0);
  }
}

}  // namespace gustline
