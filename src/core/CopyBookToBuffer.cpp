#include "core/CopyBookToBuffer.h"

#include <algorithm>
#include <map>

#include "core/Prompt.h"
#include "core/workbook/model/Sheet.h"
#include "core/workbook/model/Workbook.h"

namespace gustline {

bool CopyBookToBuffer(Prompt& prompt, wb::Workbook& source, int firstSheet, int lastSheet,
                      wb::Workbook& target, int targetSheet) {
  if (firstSheet <= -1) {
    firstSheet = 1;
    lastSheet = source.SheetCount();
  }
  if (firstSheet < 1 || lastSheet < 1) {
    prompt.Show(Message{"Gustline", "Invalid sheet range while copying workbook.",
                        PromptIcon::Exclamation, PromptButtons::Ok});
    return false;
  }
  const int step = firstSheet > lastSheet ? -1 : 1;
  const int formerSheet = source.ActiveSheet();
  int targetRow = 1;
  // One column serves every page: it takes the widest of their widths.
  std::map<int, double> widest;
  target.SetActiveSheet(targetSheet);
  for (int sheet = firstSheet; sheet != lastSheet + step; sheet += step) {
    source.SetActiveSheet(sheet);
    const int lastRow = source.LastRow();
    const int lastCol = source.LastCol();
    source.SetSelectionRC(1, 1, lastRow, lastCol);
    source.CopySelection();
    target.SetSelectionRC(targetRow, 1, targetRow + lastRow, lastCol);
    target.PasteSelection(wb::PasteMode::Values);
    for (const int row : source.GetSheet(sheet).HiddenRows()) {
      if (row <= lastRow) target.SetRowHidden(targetRow + row - 1, true);
    }
    for (const auto& [col, width] : source.GetSheet(sheet).ColumnWidths()) {
      widest[col] = std::max(widest[col], width);
    }
    targetRow += lastRow + 1;
    source.SetSelection("A1");
  }
  for (const auto& [col, width] : widest) target.SetColumnWidth(col, col, width);
  source.SetActiveSheet(formerSheet);
  source.SetSelection("A1");
  return true;
}

}  // namespace gustline
