#include <algorithm>
#include <string>

#include "core/workbook/address/SheetRanges.h"
#include "core/workbook/model/Workbook.h"
#include "core/workbook/value/FacilityError.h"
#include "core/workbook/value/TextLines.h"

namespace gustline::wb {

void Workbook::SetNumberFormat(std::string_view format) {
  Sheet& sheet = Active();
  const Area area = WalkedArea(sheet, sheet.selection);
  for (int r = area.firstRow; r <= area.lastRow; ++r)
    for (int c = area.firstCol; c <= area.lastCol; ++c) {
      Cell& cell = sheet.At(r, c);
      CellStyle style = styles_.Get(cell.style);
      style.numberFormat = format;
      cell.style = styles_.Intern(style);
    }
}

void Workbook::SetClipText(std::string_view text) {
  const int firstCol = SelFirstCol();
  int row = SelFirstRow();
  for (std::string_view line : TextLines(text)) {
    // Fields beyond the edge of the sheet fall away.
    for (int col = firstCol; row <= kMaxRow && col <= kMaxCol; ++col) {
      const std::size_t tab = std::min(line.find('\t'), line.size());
      const std::string_view field = line.substr(0, tab);
      if (field.empty())
        StoreConstant(row, col, Value());
      else if (const auto number = ReadNumber(field))
        StoreConstant(row, col, Value::Number(*number));
      else
        StoreConstant(row, col, Value::Text(std::string(field)));
      if (tab == line.size()) break;
      line.remove_prefix(tab + 1);
    }
    ++row;
  }
}

std::string Workbook::ClipText() {
  const Area area = WalkedArea(Active(), Active().selection);
  const int lastRow = std::min(area.lastRow, LastRow());
  std::string text;
  for (int r = area.firstRow; r <= lastRow; ++r) {
    for (int c = area.firstCol; c <= area.lastCol; ++c) {
      if (c > area.firstCol) text += '\t';
      text += CellText(r, c);
    }
    text += "\r\n";
  }
  return text;
}

void Workbook::CopyDown() {
  Sheet& sheet = Active();
  const Area area = WalkedArea(sheet, sheet.selection);
  if (area.lastRow <= area.firstRow) return;
  for (int c = area.firstCol; c <= area.lastCol; ++c) {
    const Cell* source = sheet.Find(area.firstRow, c);
    // A copy: writing the rows below may move the source in memory.
    const Cell first = source == nullptr ? Cell{} : *source;
    const bool blank = !first.HasContent() && first.style == 0;
    for (int r = area.firstRow + 1; r <= area.lastRow; ++r) {
      if (blank)
        sheet.Erase(r, c);
      else
        sheet.At(r, c) = first;
    }
  }
  NoteChange(true);
}

void Workbook::ClearRange(int what) {
  if (what != 1 && what != 3)
    throw FacilityError(errc::kBadArgument,
                        "ClearRange takes 1 (all) or 3 (values), not " + std::to_string(what));
  Sheet& sheet = Active();
  const Area area = WalkedArea(sheet, sheet.selection);
  const int lastRow = std::min(area.lastRow, sheet.StoredRows());
  bool cleared = false;
  for (int r = area.firstRow; r <= lastRow; ++r)
    for (int c = area.firstCol; c <= area.lastCol; ++c) {
      Cell* cell = sheet.Find(r, c);
      if (cell == nullptr) continue;
      cleared = cleared || cell->HasContent();
      if (what == 1 || cell->style == 0) {
        sheet.Erase(r, c);
      } else {
        cell->formula.reset();
        cell->value = Value();
      }
    }
  if (cleared) NoteChange(true);
}

void Workbook::SetRowHidden(int row, bool hidden) {
  CheckRow(row);
  Active().SetRowHidden(row, hidden);
}

bool Workbook::RowHidden(int row) const {
  return Active().RowHidden(row);
}

void Workbook::HideRows(int firstRow, int lastRow, bool hidden) {
  CheckRow(firstRow);
  CheckRow(lastRow);
  for (int r = std::min(firstRow, lastRow); r <= std::max(firstRow, lastRow); ++r)
    Active().SetRowHidden(r, hidden);
}

void Workbook::SetColumnWidth(int firstCol, int lastCol, double width) {
  CheckCol(firstCol);
  CheckCol(lastCol);
  if (!(width >= 0 && width <= 255))
    throw FacilityError(errc::kBadArgument, "A column width lies between 0 and 255");
  for (int c = std::min(firstCol, lastCol); c <= std::max(firstCol, lastCol); ++c)
    Active().SetColumnWidth(c, width);
}

const CellStyle& Workbook::GetCellStyle(int row, int col) const {
  CheckCell(row, col);
  const Cell* cell = Active().Find(row, col);
  return styles_.Get(cell == nullptr ? 0 : cell->style);
}

void Workbook::SetCellStyle(int row, int col, const CellStyle& style) {
  CheckCell(row, col);
  const std::uint32_t index = styles_.Intern(style);
  Cell* cell = Active().Find(row, col);
  if (cell == nullptr && index == 0) return;
  if (cell == nullptr) cell = &Active().At(row, col);
  cell->style = index;
  if (!cell->HasContent() && index == 0) Active().Erase(row, col);
}

}  // namespace gustline::wb
