#include "core/workbook/model/Clipboard.h"

#include <algorithm>
#include <string>
#include <unordered_map>

#include "core/workbook/address/SheetRanges.h"
#include "core/workbook/formula/Formula.h"
#include "core/workbook/model/BookRegistry.h"
#include "core/workbook/model/Workbook.h"
#include "core/workbook/value/FacilityError.h"

namespace gustline::wb {

ClipboardBlock& EngineClipboard() {
  static ClipboardBlock block;
  return block;
}

void Workbook::CopySelection() {
  EnsureCalculated();
  const Sheet& sheet = Active();
  const Area area = WalkedArea(sheet, sheet.selection);
  ClipboardBlock block;
  block.bookId = id_;
  block.sheetId = sheet.Id();
  block.rows = std::max(0, area.lastRow - area.firstRow + 1);
  block.cols = std::max(0, area.lastCol - area.firstCol + 1);
  block.cells.reserve(static_cast<std::size_t>(block.rows) * static_cast<std::size_t>(block.cols));
  std::unordered_map<std::uint32_t, std::uint32_t> styleIndex;
  for (int r = area.firstRow; r < area.firstRow + block.rows; ++r)
    for (int c = area.firstCol; c < area.firstCol + block.cols; ++c) {
      const Cell* cell = sheet.Find(r, c);
      Cell copy = cell == nullptr ? Cell{} : *cell;
      const auto [entry, added] =
          styleIndex.try_emplace(copy.style, static_cast<std::uint32_t>(block.styles.size()));
      if (added) block.styles.push_back(styles_.Get(copy.style));
      copy.style = entry->second;
      block.cells.push_back(std::move(copy));
    }
  EngineClipboard() = std::move(block);
}

// The source is cleared at once; a later paste brings what was there.
void Workbook::CutSelection() {
  CopySelection();
  ClearRange(1);
}

void Workbook::PasteSelection(PasteMode mode) {
  const ClipboardBlock& block = EngineClipboard();
  if (block.rows == 0 || block.cols == 0) return;
  Workbook* source = BookRegistry::Instance().FindById(block.bookId);
  const int sourceSheet = source == nullptr ? -1 : source->SheetIndexById(block.sheetId);
  std::vector<std::uint32_t> styleIndex;
  styleIndex.reserve(block.styles.size());
  for (const CellStyle& style : block.styles) styleIndex.push_back(styles_.Intern(style));

  const int firstRow = SelFirstRow();
  const int firstCol = SelFirstCol();
  Sheet& sheet = Active();
  for (int i = 0; i < block.rows && firstRow + i <= kMaxRow; ++i)
    for (int j = 0; j < block.cols && firstCol + j <= kMaxCol; ++j) {
      const Cell& from = block.At(i, j);
      const int row = firstRow + i;
      const int col = firstCol + j;
      Cell to;
      to.style = styleIndex[from.style];
      to.value = from.value;
      // A formula is printed for its new cell, which shifts its relative references, and
      // read again in this book; without its source it comes as its result.
      if (mode == PasteMode::All && from.IsFormula() && sourceSheet >= 0) {
        const std::string text =
            FormulaText(*from.formula, FormulaHost{source, sourceSheet, {row, col}});
        try {
          to.formula = ParseFormula(text, HostOf(row, col));
        } catch (const FacilityError&) {
          to.value = Value::Error(ErrorCode::Ref);
        }
      }
      if (!to.HasContent() && to.style == 0)
        sheet.Erase(row, col);
      else
        sheet.At(row, col) = std::move(to);
    }
  NoteChange(true);
}

}  // namespace gustline::wb
