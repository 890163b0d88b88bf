#pragma once

#include <string>

#include "core/workbook/address/CellAddress.h"
#include "core/workbook/model/Sheet.h"
#include "core/workbook/value/FacilityError.h"

namespace gustline::wb {

// Arguments that name rows, columns and cells must lie on the sheet.
inline void CheckRow(int row) {
  if (row < 1 || row > kMaxRow)
    throw FacilityError(errc::kBadArgument, "Row " + std::to_string(row) + " is out of range");
}

inline void CheckCol(int col) {
  if (col < 1 || col > kMaxCol)
    throw FacilityError(errc::kBadArgument, "Column " + std::to_string(col) + " is out of range");
}

inline void CheckCell(int row, int col) {
  CheckRow(row);
  CheckCol(col);
}

// The last row or column of a selection may be 0, before the first: an empty selection, as
// the selection of an empty sheet's used range is.
inline void CheckLastRow(int row) {
  if (row != 0) CheckRow(row);
}

inline void CheckLastCol(int col) {
  if (col != 0) CheckCol(col);
}

inline bool IsWholeSheet(const Area& area) {
  return area == Area{1, 1, kMaxRow, kMaxCol};
}

// The cells that a block operation walks: the selection, where a selection of the whole
// sheet stands for the cells the sheet holds.
inline Area WalkedArea(const Sheet& sheet, const Area& selection) {
  if (!IsWholeSheet(selection)) return selection;
  return Area{1, 1, sheet.StoredRows(), sheet.StoredCols()};
}

}  // namespace gustline::wb
