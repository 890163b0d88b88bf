#include "factors/MinPressureValues.h"

#include "ui/rules/FieldCells.h"

namespace gustline {

MinPressureValues LoadMinPressure(wb::Workbook& project) {
  MinPressureValues v;
  rules::LoadFields(project, kMinPressureFields, v);
  return v;
}

void SaveMinPressure(wb::Workbook& project, const MinPressureValues& v) {
  rules::SaveFields(project, kMinPressureFields, v);
}

}  // namespace gustline
