#include "geometry/ReadColumn.h"

#include <charconv>
#include <cmath>
#include <optional>
#include <string_view>

#include "core/workbook/model/Workbook.h"

namespace gustline::geometry {
namespace {

std::optional<double> NumericText(std::string_view text) {
  const auto first = text.find_first_not_of(' ');
  if (first == std::string_view::npos) return std::nullopt;
  text = text.substr(first, text.find_last_not_of(' ') - first + 1);
  double number = 0;
  const auto [ptr, ec] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (ec != std::errc() || ptr != text.data() + text.size() || !std::isfinite(number))
    return std::nullopt;
  return number;
}

}  // namespace

std::vector<double> ReadColumn(wb::Workbook& book, int sheet, int column) {
  const int previousSheet = book.ActiveSheet();
  book.SetActiveSheet(sheet);
  std::vector<double> numbers;
  const int lastRow = book.LastRow();
  for (int row = 1; row <= lastRow; ++row) {
    const wb::Value value = book.CellValue(row, column);
    if (value.IsNumber())
      numbers.push_back(value.AsNumber());
    else if (value.IsText())
      if (const auto number = NumericText(value.AsText())) numbers.push_back(*number);
  }
  book.SetActiveSheet(previousSheet);
  return numbers;
}

}  // namespace gustline::geometry
