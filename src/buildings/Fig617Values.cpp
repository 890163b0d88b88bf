#include "buildings/Fig617Values.h"

#include "ui/rules/FieldCells.h"

namespace gustline {
namespace {

constexpr QiCells kQiCells = {.useQi = "Fig68UseQi", .z = "Fig68Z"};

}  // namespace

Fig617Values LoadFig617(wb::Workbook& project) {
  Fig617Values v;
  rules::LoadFields(project, kFig617Fields, v);
  const QiChoice qi = LoadQi(project, kQiCells);
  v.useQz = qi.useQz;
  v.z = qi.z;
  v.table64 = qi.table64;
  return v;
}

void SaveFig617(wb::Workbook& project, const Fig617Values& v) {
  rules::SaveFields(project, kFig617Fields, v);
  SaveQi(project, kQiCells, v.useQz, v.z);
}

}  // namespace gustline
