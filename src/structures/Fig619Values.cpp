#include "structures/Fig619Values.h"

#include "ui/rules/FieldCells.h"

namespace gustline {

Fig619Values LoadFig619(wb::Workbook& project) {
  Fig619Values v;
  rules::LoadFields(project, kFig619Fields, v);
  return v;
}

void SaveFig619(wb::Workbook& project, const Fig619Values& v) {
  rules::SaveFields(project, kFig619Fields, v);
}

std::optional<Message> Fig619RoofTypeError(int roofType) {
  if (roofType >= FreeRoof::kMonoslope && roofType <= FreeRoof::kTroughed) return std::nullopt;
  return Message{"Error", "Invalid roof type value!"};
}

}  // namespace gustline
