#include "buildings/ArchValues.h"

#include "ui/rules/FieldCells.h"

namespace gustline {
namespace {

constexpr QiCells kFigure68QiCells = {.useQi = "Fig63UseQi", .z = "Fig63Z"};
constexpr QiCells kFigure68compQiCells = {.useQi = "T65UseQi", .z = "T65Z"};

}  // namespace

Figure68Values LoadFigure68(wb::Workbook& project) {
  Figure68Values v;
  rules::LoadFields(project, kFigure68Fields, v);
  const QiChoice qi = LoadQi(project, kFigure68QiCells);
  v.useQz = qi.useQz;
  v.z = qi.z;
  v.table64 = qi.table64;
  return v;
}

Figure68compValues LoadFigure68comp(wb::Workbook& project) {
  Figure68compValues v;
  rules::LoadFields(project, kFigure68compFields, v);
  const QiChoice qi = LoadQi(project, kFigure68compQiCells);
  v.useQz = qi.useQz;
  v.z = qi.z;
  v.table64 = qi.table64;
  return v;
}

void SaveFigure68(wb::Workbook& project, const Figure68Values& v) {
  rules::SaveFields(project, kFigure68Fields, v);
  SaveQi(project, kFigure68QiCells, v.useQz, v.z);
}

void SaveFigure68comp(wb::Workbook& project, const Figure68compValues& v) {
  rules::SaveFields(project, kFigure68compFields, v);
  SaveQi(project, kFigure68compQiCells, v.useQz, v.z);
}

}  // namespace gustline
