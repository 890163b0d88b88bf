#include "buildings/Fig66Values.h"

#include "ui/rules/FieldCells.h"

namespace gustline {
namespace {

constexpr QiCells kQiCells = {.useQi = "Fig63UseQi", .z = "Fig63Z"};

}  // namespace

Fig66Values LoadFig66(wb::Workbook& project) {
  Fig66Values v;
  rules::LoadFields(project, kFig66Fields, v);
  const QiChoice qi = LoadQi(project, kQiCells);
  v.useQz = qi.useQz;
  v.z = qi.z;
  v.table64 = qi.table64;
  return v;
}

void SaveFig66(wb::Workbook& project, const Fig66Values& v) {
  rules::SaveFields(project, kFig66Fields, v);
  SaveQi(project, kQiCells, v.useQz, v.z);
}

}  // namespace gustline
