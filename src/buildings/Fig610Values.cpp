#include "buildings/Fig610Values.h"

#include "ui/rules/FieldCells.h"

namespace gustline {

Fig610Values LoadFig610(wb::Workbook& project) {
  Fig610Values v;
  rules::LoadFields(project, kFig610Fields, v);
  return v;
}

void SaveFig610(wb::Workbook& project, const Fig610Values& v) {
  rules::SaveFields(project, kFig610Fields, v);
}

}  // namespace gustline
