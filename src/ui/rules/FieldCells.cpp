#include "ui/rules/FieldCells.h"

#include "core/workbook/model/NamedCells.h"
#include "core/workbook/value/NumberFormat.h"
#include "ui/rules/FieldNumber.h"

namespace gustline::rules {
namespace {

constexpr std::string_view kTextFormat = "@";

}  // namespace

void LoadCell(wb::Workbook& project, std::string_view cell, std::string_view format, double perCell,
              std::string& text) {
  text = format == kTextFormat
             ? wb::ReadNamedText(project, cell)
             : wb::FormatNumber(wb::ReadNamedNumber(project, cell) * perCell, format);
}

void LoadCell(wb::Workbook& project, std::string_view cell, std::string_view, double,
              bool& ticked) {
  ticked = wb::ReadNamedInt(project, cell) == 1;
}

void LoadCell(wb::Workbook& project, std::string_view cell, std::string_view, double, int& index) {
  index = wb::ReadNamedInt(project, cell);
}

void SaveCell(wb::Workbook& project, std::string_view cell, std::string_view format, double perCell,
              const std::string& text) {
  if (format == kTextFormat) {
    wb::WriteNamedText(project, cell, text);
  } else {
    wb::WriteNamedNumber(project, cell, FieldValue(text) / perCell);
  }
}

void SaveCell(wb::Workbook& project, std::string_view cell, std::string_view, double, bool ticked) {
  wb::WriteNamedInt(project, cell, ticked ? 1 : 0);
}

void SaveCell(wb::Workbook& project, std::string_view cell, std::string_view, double, int index) {
  wb::WriteNamedInt(project, cell, index);
}

}  // namespace gustline::rules
