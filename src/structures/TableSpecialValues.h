#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "core/Prompt.h"
#include "ui/rules/FormField.h"

namespace gustline::wb {
class Workbook;
}

namespace gustline {

// The fields of the dialog of the special case, a structure that no figure covers: the
// projected area and the force coefficient of each height interval, and the wind
// directionality factor Kd as typed.
struct TableSpecialValues {
  std::string areas;         // sq ft, comma list by interval, a comma after each entry
  std::string coefficients;  // the same form
  std::string kd;
};

// The cell of Kd, which has no name; the report takes 1 for it when it is empty.
inline constexpr std::string_view kTableSpecialKdCell = "Sheet1!$B$115";

// The Kd box KdEditBox; the lists are the grid F1Special's.
inline constexpr rules::FormField<TableSpecialValues> kTableSpecialFields[] = {
    {.control = "KdEditBox",
     .member = &TableSpecialValues::kd,
     .cell = kTableSpecialKdCell,
     .format = "@"},
};

TableSpecialValues LoadTableSpecial(wb::Workbook& project);
void SaveTableSpecial(wb::Workbook& project, const TableSpecialValues& values);

// The grid's check of what is typed into its area and coefficient columns: a number above
// 0, a formula, or nothing.
std::optional<Message> TableSpecialEntryRefusal(std::string_view entry);

}  // namespace gustline
