#include "simplified/SimplifiedValues.h"

#include <algorithm>
#include <string>

#include "core/workbook/model/NamedCells.h"
#include "ui/frmWindPropValues.h"
#include "ui/rules/FieldCells.h"
#include "ui/rules/FieldNumber.h"

namespace gustline {

SimplifiedValues LoadSimplified(wb::Workbook& project) {
  SimplifiedValues v;
  rules::LoadFields(project, kSimplifiedFields, v);
  v.system = std::min(wb::ReadNamedInt(project, "System"), 1);
  SetCategory(v, wb::ReadNamedInt(project, "Category"));
  v.exposure = std::max(wb::ReadNamedInt(project, "Exposure"), 1);
  return v;
}

void SaveSimplified(wb::Workbook& project, const SimplifiedValues& v) {
  const auto field = [&](std::string_view cell, const std::string& text) {
    wb::WriteNamedNumber(project, cell, rules::FieldValue(text));
  };
  wb::WriteNamedInt(project, "System", v.system);
  field("WindSpeed", v.windSpeed);
  wb::WriteNamedNumber(project, "Red_Fact", 0.0);
  wb::WriteNamedNumber(project, "Trib_Area", 0.0);
  field("SimplifiedAngle", v.roofAngle);
  wb::WriteNamedInt(project, "Category", CategoryValue(v.categoryOption, v.hurricane));
  wb::WriteNamedInt(project, "Exposure", v.exposure);
  wb::WriteNamedInt(project, "B124", 1);
  field("Height", v.height);
}

std::optional<Message> SimplifiedOkError(wb::Workbook& project, const SimplifiedValues& v) {
  if (rules::FieldValue(v.height) > kSimplifiedHeightLimit)
    return Message{.title = "Range Error",
                   .text = "Building height must be less than or equal to 60"};
  for (int zone = 1; zone <= 5; ++zone) {
    if (wb::ReadNamedNumber(project, "Zone" + std::to_string(zone) + "Area") == 0)
      return Message{.title = "Error",
                     .text = "You must enter effective wind areas for each zone",
                     .icon = PromptIcon::Stop};
  }
  return std::nullopt;
}

}  // namespace gustline
