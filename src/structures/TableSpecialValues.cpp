#include "structures/TableSpecialValues.h"

#include <utility>

#include "core/workbook/model/NamedCells.h"
#include "ui/rules/FieldCells.h"
#include "ui/rules/FieldNumber.h"

namespace gustline {
namespace {

// What the box shows for an empty cell: the factor the report takes for it.
constexpr std::string_view kEmptyKd = "1";

}  // namespace

TableSpecialValues LoadTableSpecial(wb::Workbook& project) {
  TableSpecialValues cells;
  rules::LoadFields(project, kTableSpecialFields, cells);
  return {.areas = wb::ReadNamedText(project, "TableSpecialProjAreas"),
          .coefficients = wb::ReadNamedText(project, "TableSpecialCoefficients"),
          .kd = cells.kd.empty() ? std::string(kEmptyKd) : std::move(cells.kd)};
}

void SaveTableSpecial(wb::Workbook& project, const TableSpecialValues& v) {
  wb::WriteNamedText(project, "TableSpecialProjAreas", v.areas);
  wb::WriteNamedText(project, "TableSpecialCoefficients", v.coefficients);
  rules::SaveFields(project, kTableSpecialFields, v);
}

std::optional<Message> TableSpecialEntryRefusal(std::string_view entry) {
  // A formula's value is known only once it is in.
  if (entry.empty() || entry.front() == '=') return std::nullopt;
  const auto number = rules::FieldNumber(entry);
  if (number && *number > 0) return std::nullopt;
  return Message{"Error", "Enter value greater than zero.", PromptIcon::Stop, PromptButtons::Ok};
}

}  // namespace gustline
