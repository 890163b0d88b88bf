#include "core/CopyBookToBuffer.h"

#include "core/Prompt.h"
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
  target.SetActiveSheet(targetSheet);
  for (int sheet = firstSheet; sheet != lastSheet + step; sheet += step) {
    source.SetActiveSheet(sheet);
    const int lastRow = source.LastRow();
    const int lastCol = source.LastCol();
    source.SetSelectionRC(1, 1, lastRow, lastCol);
    source.CopySelection();
    target.SetSelectionRC(targetRow, 1, targetRow + lastRow, lastCol);
    target.PasteSelection(wb::PasteMode::Values);
    targetRow += lastRow + 1;
    source.SetSelection("A1");
  }
  source.SetActiveSheet(formerSheet);
  source.SetSelection("A1");
  return true;
}

}  // namespace gustline
