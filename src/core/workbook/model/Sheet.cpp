#include "core/workbook/model/Sheet.h"

#include <algorithm>

#include "core/workbook/value/FacilityError.h"

namespace gustline::wb {
namespace {

bool IsBlank(const Cell& cell) {
  return !cell.HasContent() && cell.style == 0;
}

}  // namespace

const Cell* Sheet::Find(int row, int col) const {
  if (row < 1 || col < 1 || row > StoredRows()) return nullptr;
  const auto& cells = rows_[static_cast<std::size_t>(row - 1)];
  if (col > static_cast<int>(cells.size())) return nullptr;
  return &cells[static_cast<std::size_t>(col - 1)];
}

Cell* Sheet::Find(int row, int col) {
  return const_cast<Cell*>(static_cast<const Sheet&>(*this).Find(row, col));
}

Cell& Sheet::At(int row, int col) {
  if (row < 1 || row > kMaxRow || col < 1 || col > kMaxCol)
    throw FacilityError(errc::kBadArgument,
                        "Cell " + CellRefText(row, col, false) + " lies outside the sheet");
  if (row > StoredRows()) rows_.resize(static_cast<std::size_t>(row));
  auto& cells = rows_[static_cast<std::size_t>(row - 1)];
  if (col > static_cast<int>(cells.size())) cells.resize(static_cast<std::size_t>(col));
  return cells[static_cast<std::size_t>(col - 1)];
}

void Sheet::Erase(int row, int col) {
  Cell* cell = Find(row, col);
  if (cell == nullptr) return;
  *cell = Cell{};
  auto& cells = rows_[static_cast<std::size_t>(row - 1)];
  while (!cells.empty() && IsBlank(cells.back())) cells.pop_back();
  while (!rows_.empty() && rows_.back().empty()) rows_.pop_back();
}

void Sheet::ClearAll() {
  rows_.clear();
}

int Sheet::LastRow() const {
  for (int r = StoredRows(); r >= 1; --r) {
    const auto& cells = rows_[static_cast<std::size_t>(r - 1)];
    if (std::any_of(cells.begin(), cells.end(), [](const Cell& c) { return c.HasContent(); }))
      return r;
  }
  return 0;
}

int Sheet::LastCol() const {
  int last = 0;
  for (const auto& cells : rows_)
    for (int c = static_cast<int>(cells.size()); c > last; --c)
      if (cells[static_cast<std::size_t>(c - 1)].HasContent()) {
        last = c;
        break;
      }
  return last;
}

int Sheet::StoredCols() const {
  std::size_t widest = 0;
  for (const auto& cells : rows_) widest = std::max(widest, cells.size());
  return static_cast<int>(widest);
}

bool Sheet::RowHidden(int row) const {
  return std::binary_search(hiddenRows_.begin(), hiddenRows_.end(), row);
}

void Sheet::SetRowHidden(int row, bool hidden) {
  const auto at = std::lower_bound(hiddenRows_.begin(), hiddenRows_.end(), row);
  const bool present = at != hiddenRows_.end() && *at == row;
  if (hidden && !present) hiddenRows_.insert(at, row);
  if (!hidden && present) hiddenRows_.erase(at);
}

double Sheet::ColumnWidth(int col) const {
  const auto found = columnWidths_.find(col);
  return found == columnWidths_.end() ? defaultColumnWidth_ : found->second;
}

void Sheet::SetColumnWidth(int col, double width) {
  columnWidths_[col] = width;
}

}  // namespace gustline::wb
