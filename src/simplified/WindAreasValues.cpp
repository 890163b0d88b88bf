#include "simplified/WindAreasValues.h"

#include "ui/rules/FieldCells.h"
#include "ui/rules/FieldNumber.h"

namespace gustline {

WindAreas LoadWindAreas(wb::Workbook& project) {
  WindAreas areas;
  rules::LoadFields(project, kWindAreasFields, areas);
  for (const auto& field : kWindAreasFields) {
    std::string& text = areas.*std::get<std::string WindAreas::*>(field.member);
    if (rules::FieldValue(text) == 0) text = "10";
  }
  return areas;
}

void SaveWindAreas(wb::Workbook& project, const WindAreas& areas) {
  rules::SaveFields(project, kWindAreasFields, areas);
}

}  // namespace gustline
