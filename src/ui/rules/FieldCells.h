#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <variant>

#include "ui/rules/FormField.h"

namespace gustline::wb {
class Workbook;
}

namespace gustline::rules {

// A field's value from its cell and back. A text box shows the cell's number times its unit
// in its format, or the cell's text for "@", and writes the number it reads as (0 for none)
// or the text; a tick is a cell holding 1; an index is the cell's whole number.
void LoadCell(wb::Workbook& project, std::string_view cell, std::string_view format, double perCell,
              std::string& text);
void LoadCell(wb::Workbook& project, std::string_view cell, std::string_view format, double perCell,
              bool& ticked);
void LoadCell(wb::Workbook& project, std::string_view cell, std::string_view format, double perCell,
              int& index);
void SaveCell(wb::Workbook& project, std::string_view cell, std::string_view format, double perCell,
              const std::string& text);
void SaveCell(wb::Workbook& project, std::string_view cell, std::string_view format, double perCell,
              bool ticked);
void SaveCell(wb::Workbook& project, std::string_view cell, std::string_view format, double perCell,
              int index);

// Every field of the table that has a cell, from the project into the values.
template <typename Values, std::size_t N>
void LoadFields(wb::Workbook& project, const FormField<Values> (&fields)[N], Values& values) {
  for (const FormField<Values>& field : fields) {
    if (field.cell.empty()) continue;
    std::visit(
        [&](auto member) {
          LoadCell(project, field.cell, field.format, field.perCell, values.*member);
        },
        field.member);
  }
}

// Every field of the table that has a cell, from the values into the project.
template <typename Values, std::size_t N>
void SaveFields(wb::Workbook& project, const FormField<Values> (&fields)[N], const Values& values) {
  for (const FormField<Values>& field : fields) {
    if (field.cell.empty()) continue;
    std::visit(
        [&](auto member) {
          SaveCell(project, field.cell, field.format, field.perCell, values.*member);
        },
        field.member);
  }
}

}  // namespace gustline::rules
