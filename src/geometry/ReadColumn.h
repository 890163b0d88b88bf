#pragma once

#include <vector>

namespace gustline::wb {
class Workbook;
}

namespace gustline::geometry {

// The numbers of one column of a sheet (both from 1), from row 1 to the sheet's last used
// row, in order. Blank and text cells are skipped without leaving a hole; a text that reads
// as a number counts as that number. The book's active sheet is left as it was.
std::vector<double> ReadColumn(wb::Workbook& book, int sheet, int column);

}  // namespace gustline::geometry
