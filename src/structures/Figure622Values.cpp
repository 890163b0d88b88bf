#include "structures/Figure622Values.h"

#include "core/workbook/model/NamedCells.h"
#include "ui/rules/FieldCells.h"

namespace gustline {

Figure622Values LoadFigure622(wb::Workbook& project) {
  Figure622Values v;
  rules::LoadFields(project, kFigure622Fields, v);
  v.ratios = wb::ReadNamedText(project, "Table610Ratios");
  return v;
}

void SaveFigure622(wb::Workbook& project, const Figure622Values& v) {
  rules::SaveFields(project, kFigure622Fields, v);
  wb::WriteNamedText(project, "Table610Ratios", v.ratios);
}

}  // namespace gustline
