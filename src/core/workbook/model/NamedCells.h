#pragma once

#include <string>
#include <string_view>

namespace gustline::wb {

class Workbook;

// The named-cell helpers: select the name (a defined name or a cell text such as "B124"),
// then read or write the selection's first cell. An unknown name raises FacilityError.
// They move the book's selection, and none restores it.
double ReadNamedNumber(Workbook& book, std::string_view name);
// The value rounded to a 16-bit integer; an empty cell gives 0.
int ReadNamedInt(Workbook& book, std::string_view name);
std::string ReadNamedText(Workbook& book, std::string_view name);
void WriteNamedNumber(Workbook& book, std::string_view name, double value);
void WriteNamedInt(Workbook& book, std::string_view name, int value);
void WriteNamedText(Workbook& book, std::string_view name, std::string_view text);
// The first defined name, in the book's order, whose selection is exactly the cell;
// empty when none. The active cell is restored to the cell afterwards.
std::string FindNameOfCell(Workbook& book, int row, int col);

}  // namespace gustline::wb
