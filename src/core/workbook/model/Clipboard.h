#pragma once

#include <cstdint>
#include <vector>

#include "core/workbook/value/Cell.h"
#include "core/workbook/value/CellStyle.h"

namespace gustline::wb {

// The engine's own clipboard, shared by all books of the process (not the system's): the
// cells of the last copied selection, with the styles they use.
struct ClipboardBlock {
  std::uint64_t bookId = 0;   // the book copied from; it may be closed by the time of pasting
  std::uint32_t sheetId = 0;  // its sheet
  int rows = 0;
  int cols = 0;
  std::vector<Cell> cells;        // row-major; a cell's style indexes `styles`
  std::vector<CellStyle> styles;  // the styles of the copied cells, each once

  const Cell& At(int row, int col) const {
    return cells[static_cast<std::size_t>(row) * static_cast<std::size_t>(cols) +
                 static_cast<std::size_t>(col)];
  }
};

ClipboardBlock& EngineClipboard();

}  // namespace gustline::wb
