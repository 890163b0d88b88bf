#include "buildings/Fig611Values.h"

#include <algorithm>
#include <iterator>

#include "core/workbook/model/NamedCells.h"
#include "ui/rules/FieldCells.h"
#include "ui/rules/FieldNumber.h"

namespace gustline {
namespace {

constexpr std::string_view kAreaFormat = "General";
constexpr std::string_view kAngleFormat = "0.00";

const Fig611RoofCells& RoofCells(int roofType) {
  constexpr int last = static_cast<int>(std::size(kFig611RoofCells)) - 1;
  return kFig611RoofCells[std::clamp(roofType, 0, last)];
}

// Note 5 of Figure 6-11B: a parapet at least 3 ft above the roof of a slope up to 7 degrees
// lets the roof zones 2 and 3 take the wall values.
void SaveNote5(wb::Workbook& project, const Fig611Values& v) {
  const double parapetHeight =
      rules::FieldValue(v.parapetElevation) - wb::ReadNamedNumber(project, "Height");
  if (v.hasParapet && parapetHeight >= 3 && rules::FieldValue(v.angle) <= 7) {
    wb::WriteNamedNumber(project, "Fig611BZone4", rules::FieldValue(v.zone2));
    wb::WriteNamedNumber(project, "Fig611BZone5", rules::FieldValue(v.zone3));
    wb::WriteNamedNumber(project, "ParapetHeight", parapetHeight);
    wb::WriteNamedInt(project, "Fig611Note5Applies", 1);
  } else {
    wb::WriteNamedInt(project, "Fig611Note5Applies", 0);
  }
}

}  // namespace

Fig611Values LoadFig611(wb::Workbook& project, int roofType) {
  Fig611Values v;
  rules::LoadFields(project, kFig611Fields, v);
  rules::LoadCell(project, kZone2pCell, kAreaFormat, 1, v.zone2p);
  rules::LoadCell(project, kZone3pCell, kAreaFormat, 1, v.zone3p);
  v.roofType = roofType;
  LoadFig611Roof(project, v);
  return v;
}

void LoadFig611Roof(wb::Workbook& project, Fig611Values& v) {
  const Fig611RoofCells& cells = RoofCells(v.roofType);
  rules::LoadCell(project, cells.zone1, kAreaFormat, 1, v.zone1);
  rules::LoadCell(project, cells.zone2, kAreaFormat, 1, v.zone2);
  rules::LoadCell(project, cells.zone3, kAreaFormat, 1, v.zone3);
  rules::LoadCell(project, cells.angle, kAngleFormat, 1, v.angle);
}

void SaveFig611(wb::Workbook& project, const Fig611Values& v) {
  SaveNote5(project, v);
  const Fig611RoofCells& cells = RoofCells(v.roofType);
  rules::SaveCell(project, cells.zone1, kAreaFormat, 1, v.zone1);
  rules::SaveCell(project, cells.zone2, kAreaFormat, 1, v.zone2);
  rules::SaveCell(project, cells.zone3, kAreaFormat, 1, v.zone3);
  rules::SaveCell(project, cells.angle, kAngleFormat, 1, v.angle);
  if (PrimeZonesEnabled(v.roofType)) {
    rules::SaveCell(project, kZone2pCell, kAreaFormat, 1, v.zone2p);
    rules::SaveCell(project, kZone3pCell, kAreaFormat, 1, v.zone3p);
  }
  rules::SaveFields(project, kFig611Fields, v);
}

}  // namespace gustline
