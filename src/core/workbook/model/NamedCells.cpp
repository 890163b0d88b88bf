#include "core/workbook/model/NamedCells.h"

#include <cmath>
#include <string>

#include "core/workbook/address/CellAddress.h"
#include "core/workbook/model/Workbook.h"
#include "core/workbook/value/FacilityError.h"

namespace gustline::wb {
namespace {

// Selects the name and gives the selection's top left cell.
CellAddress SelectName(Workbook& book, std::string_view name) {
  book.SetSelection(name);
  return {book.SelFirstRow(), book.SelFirstCol()};
}

// To the nearest integer, ties to the even one, as a conversion to a 16-bit integer rounds.
int ToInt16(double number) {
  double rounded = std::floor(number);
  const double fraction = number - rounded;
  if (fraction > 0.5 || (fraction == 0.5 && std::fmod(rounded, 2) != 0)) rounded += 1;
  if (!(rounded >= -32768 && rounded <= 32767))
    throw FacilityError(errc::kBadArgument,
                        "Overflow: " + std::to_string(number) + " does not fit a 16-bit integer");
  return static_cast<int>(rounded);
}

}  // namespace

double ReadNamedNumber(Workbook& book, std::string_view name) {
  const CellAddress cell = SelectName(book, name);
  return book.CellNumber(cell.row, cell.col);
}

int ReadNamedInt(Workbook& book, std::string_view name) {
  return ToInt16(ReadNamedNumber(book, name));
}

std::string ReadNamedText(Workbook& book, std::string_view name) {
  const CellAddress cell = SelectName(book, name);
  return book.CellText(cell.row, cell.col);
}

void WriteNamedNumber(Workbook& book, std::string_view name, double value) {
  const CellAddress cell = SelectName(book, name);
  book.SetCellNumber(cell.row, cell.col, value);
}

void WriteNamedInt(Workbook& book, std::string_view name, int value) {
  WriteNamedNumber(book, name, static_cast<double>(value));
}

void WriteNamedText(Workbook& book, std::string_view name, std::string_view text) {
  const CellAddress cell = SelectName(book, name);
  book.SetCellText(cell.row, cell.col, text);
}

std::string FindNameOfCell(Workbook& book, int row, int col) {
  const std::string cellText = CellRefText(row, col, true);
  std::string found;
  for (int i = 1; i <= book.NameCount() && found.empty(); ++i) {
    const std::string name = book.NameAt(i);
    try {
      book.SetSelection(name);
    } catch (const FacilityError&) {
      continue;  // a name that refers to no cells
    }
    if (book.Selection() == cellText) found = name;
  }
  book.SetActiveRow(row);
  book.SetActiveCol(col);
  return found;
}

}  // namespace gustline::wb
