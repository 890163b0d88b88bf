#include "structures/Figure618Values.h"

#include "ui/rules/FieldCells.h"
#include "ui/rules/FieldNumber.h"

namespace gustline {
namespace {

Message Refusal(const char* text) {
  return Message{"Error", text, PromptIcon::Exclamation};
}

}  // namespace

Figure618Values LoadFigure618(wb::Workbook& project) {
  Figure618Values v;
  rules::LoadFields(project, kFigure618Fields, v);
  return v;
}

void SaveFigure618(wb::Workbook& project, const Figure618Values& v) {
  rules::SaveFields(project, kFigure618Fields, v);
}

std::optional<Message> Figure618Refusal(const Figure618Values& v, double height, double width) {
  const double angle = rules::FieldValue(v.angle);
  if (angle < 7.5 && (v.roofType == FreeRoof::kPitched || v.roofType == FreeRoof::kTroughed)) {
    return Refusal(
        "Roof angle less than 7.5 degrees is not valid for pitched or troughed roofs.  Use the "
        "Monoslope option in this case.");
  }
  if (!Note5Enabled(v.roofType) || !v.note5Applies) return std::nullopt;
  if (angle >= 5) return Refusal("Roof angle must be less than 5 degrees for Note 5 to apply.");
  // A zero width gives no ratio, and is refused with the others.
  const double ratio = height / width;
  if (!(ratio >= 0.05 && ratio <= 0.25)) return Note5RatioRefusal();
  return std::nullopt;
}

}  // namespace gustline
