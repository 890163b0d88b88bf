#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace gustline::wb {

inline constexpr int kMaxRow = 16384;
inline constexpr int kMaxCol = 256;

// A cell: 1-based row and column.
struct CellAddress {
  int row = 1;
  int col = 1;
  bool operator==(const CellAddress&) const = default;
};

// A rectangle of cells, 1-based and inclusive.
struct Area {
  int firstRow = 1;
  int firstCol = 1;
  int lastRow = 1;
  int lastCol = 1;
  bool operator==(const Area&) const = default;
  bool Contains(int row, int col) const {
    return row >= firstRow && row <= lastRow && col >= firstCol && col <= lastCol;
  }
};

// "A", "Z", "AA", ...
std::string ColumnLetters(int col);
// "C12", or "$C$12" when absolute.
std::string CellRefText(int row, int col, bool absolute);
// "$A$1:$C$16" for an area, "$B$87" for a single cell.
std::string AreaText(const Area& area, bool absolute = true);
// Reads "A1", "$B$87", "A1:C16384" (without a sheet); nullopt when the text is no reference.
std::optional<Area> ParseAreaText(std::string_view text);

}  // namespace gustline::wb
