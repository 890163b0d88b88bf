#include "structures/Figure619Values.h"

#include "core/workbook/model/NamedCells.h"
#include "ui/rules/FieldCells.h"

namespace gustline {

Figure619Values LoadFigure619(wb::Workbook& project) {
  Figure619Values v;
  rules::LoadFields(project, kFigure619Fields, v);
  v.diameters = wb::ReadNamedText(project, "Table67Dia");
  return v;
}

void SaveFigure619(wb::Workbook& project, const Figure619Values& v) {
  rules::SaveFields(project, kFigure619Fields, v);
  wb::WriteNamedText(project, "Table67Dia", v.diameters);
}

}  // namespace gustline
