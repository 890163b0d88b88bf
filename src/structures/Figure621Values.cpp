#include "structures/Figure621Values.h"

#include "ui/rules/FieldCells.h"

namespace gustline {

Figure621Values LoadFigure621(wb::Workbook& project) {
  Figure621Values v;
  rules::LoadFields(project, kFigure621Fields, v);
  return v;
}

void SaveFigure621(wb::Workbook& project, const Figure621Values& v) {
  rules::SaveFields(project, kFigure621Fields, v);
}

}  // namespace gustline
