#include <string>

#include "core/workbook/address/SheetRanges.h"
#include "core/workbook/model/Workbook.h"
#include "core/workbook/value/FacilityError.h"

namespace gustline::wb {
namespace {

// A defined name starts with a letter, "_" or "\" and goes on with letters, digits, "_", ".".
bool LooksLikeName(std::string_view text) {
  if (text.empty()) return false;
  const auto isLetter = [](char c) { return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z'); };
  if (!isLetter(text[0]) && text[0] != '_' && text[0] != '\\') return false;
  for (const char c : text)
    if (!isLetter(c) && !(c >= '0' && c <= '9') && c != '_' && c != '.' && c != '\\') return false;
  return true;
}

}  // namespace

void Workbook::SetSelection(std::string_view rangeOrName) {
  const auto target = ResolveReference(rangeOrName);
  if (!target) {
    const std::string text(rangeOrName);
    const int slot = names_.Find(text);
    if (LooksLikeName(text) && (slot < 0 || !names_.At(slot).defined))
      throw FacilityError(errc::kUnknownName, "The name \"" + text + "\" is not defined");
    throw FacilityError(errc::kBadReference, "\"" + text + "\" is no reference to cells");
  }
  activeSheet_ = target->first - 1;
  Active().selection = target->second;
  Active().active = {target->second.firstRow, target->second.firstCol};
}

std::string Workbook::Selection() const {
  return AreaText(Active().selection);
}

int Workbook::SelFirstRow() const {
  return Active().selection.firstRow;
}
int Workbook::SelLastRow() const {
  return Active().selection.lastRow;
}
int Workbook::SelFirstCol() const {
  return Active().selection.firstCol;
}
int Workbook::SelLastCol() const {
  return Active().selection.lastCol;
}

void Workbook::SetSelFirstRow(int row) {
  CheckRow(row);
  Active().selection.firstRow = row;
}

void Workbook::SetSelLastRow(int row) {
  CheckLastRow(row);
  Active().selection.lastRow = row;
}

void Workbook::SetSelFirstCol(int col) {
  CheckCol(col);
  Active().selection.firstCol = col;
}

void Workbook::SetSelLastCol(int col) {
  CheckLastCol(col);
  Active().selection.lastCol = col;
}

void Workbook::SetSelectionRC(int firstRow, int firstCol, int lastRow, int lastCol) {
  if (firstRow == -1 && firstCol == -1 && lastRow == -1 && lastCol == -1) {
    firstRow = firstCol = 1;
    lastRow = kMaxRow;
    lastCol = kMaxCol;
  }
  CheckCell(firstRow, firstCol);
  CheckLastRow(lastRow);
  CheckLastCol(lastCol);
  Active().selection = Area{firstRow, firstCol, lastRow, lastCol};
  Active().active = {firstRow, firstCol};
}

int Workbook::ActiveRow() const {
  return Active().active.row;
}
int Workbook::ActiveCol() const {
  return Active().active.col;
}
void Workbook::SetActiveRow(int row) {
  SetActiveCell(row, ActiveCol());
}
void Workbook::SetActiveCol(int col) {
  SetActiveCell(ActiveRow(), col);
}

void Workbook::SetActiveCell(int row, int col) {
  CheckCell(row, col);
  Active().active = {row, col};
  Active().selection = Area{row, col, row, col};
}

int Workbook::TopRow() const {
  return Active().topRow;
}

void Workbook::SetTopRow(int row) {
  CheckRow(row);
  Active().topRow = row;
}

int Workbook::LeftCol() const {
  return Active().leftCol;
}

void Workbook::SetLeftCol(int col) {
  CheckCol(col);
  Active().leftCol = col;
}

int Workbook::MaxRow() const {
  return Active().maxRow;
}

void Workbook::SetMaxRow(int rows) {
  CheckRow(rows);
  Active().maxRow = rows;
}

int Workbook::LastRow() const {
  return Active().LastRow();
}
int Workbook::LastCol() const {
  return Active().LastCol();
}

}  // namespace gustline::wb
