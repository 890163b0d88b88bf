#include "structures/IntervalValues.h"

#include <algorithm>
#include <utility>

#include "core/workbook/model/NamedCells.h"
#include "core/workbook/model/Workbook.h"
#include "core/workbook/value/Value.h"
#include "geometry/HeightList.h"

namespace gustline {
namespace {

Message GridError(const char* text) {
  return Message{"Error", text, PromptIcon::Stop, PromptButtons::Ok};
}

}  // namespace

std::string ProjectHeightRows(wb::Workbook& project) {
  return geometry::BuildHeightText(
      wb::ReadNamedNumber(project, "Height"), wb::ReadNamedInt(project, "Interval"),
      wb::ReadNamedInt(project, "Order"), wb::ReadNamedText(project, "UserIntervals"));
}

std::vector<std::string> IntervalEntries(std::string_view list, int rows) {
  std::vector<std::string> entries;
  for (const std::string_view entry : geometry::CommaListEntries(list)) {
    if (std::cmp_greater_equal(entries.size(), rows)) break;
    entries.emplace_back(entry);
  }
  entries.resize(static_cast<std::size_t>(std::max(rows, 0)), std::string(kMissingIntervalValue));
  return entries;
}

int FillIntervalGrid(wb::Workbook& grid, std::string_view heightRows,
                     std::span<const std::string> lists) {
  std::vector<std::string_view> lines;
  for (std::size_t pos = 0; pos < heightRows.size();) {
    const std::size_t end = std::min(heightRows.find("\r\n", pos), heightRows.size());
    lines.push_back(heightRows.substr(pos, end - pos));
    pos = end + 2;
  }
  const int rows = static_cast<int>(lines.size());
  std::vector<std::vector<std::string>> columns;
  for (const std::string& list : lists) columns.push_back(IntervalEntries(list, rows));
  std::string block;
  for (std::size_t row = 0; row < lines.size(); ++row) {
    block.append(lines[row]);
    for (const auto& column : columns) block.append("\t").append(column[row]);
    block.append("\r\n");
  }
  if (rows > 0) {
    const int lastCol = 2 + static_cast<int>(lists.size());
    grid.SetSelectionRC(1, 1, rows, 2);
    grid.SetNumberFormat("0.00");
    grid.SetSelectionRC(1, 3, rows, lastCol);
    // Two places at least, and the places typed beyond them, up to six.
    grid.SetNumberFormat("0.00####");
    grid.SetSelection("A1");
    grid.SetClipText(block);
  }
  grid.SetSelection("C1");
  return rows;
}

std::string IntervalGridList(wb::Workbook& grid, int col, int rows, bool trailingComma) {
  std::string list;
  for (int row = 1; row <= rows; ++row) {
    if (row > 1 && !trailingComma) list += ',';
    list += grid.CellText(row, col);
    if (trailingComma) list += ',';
  }
  return list;
}

std::optional<GridFault> FindGridFault(wb::Workbook& grid, std::span<const int> cols, int rows,
                                       bool positive) {
  for (const int col : cols) {
    for (int row = 1; row <= rows; ++row) {
      const wb::Value value = grid.CellValue(row, col);
      if (value.IsEmpty() || grid.CellText(row, col).empty())
        return GridFault{row, col, GridError("  Empty cells are not allowed.  ")};
      if (positive && !(value.IsNumber() && value.AsNumber() > 0))
        return GridFault{row, col, GridError("  Value in cell not with in range.  ")};
    }
  }
  return std::nullopt;
}

}  // namespace gustline
