#pragma once

namespace gustline {

namespace wb {
class Workbook;
}
class Prompt;

// Stacks the source's sheets from firstSheet to lastSheet (a first sheet of -1 or below
// takes them all) on the target sheet, as results, from row 1, one empty row between
// them; first above last goes backwards. A range that still starts or ends below sheet 1
// gives "Invalid sheet range while copying workbook." and copies nothing: the result is
// then false. The source keeps its active sheet; its sheets are left with A1 selected.
bool CopyBookToBuffer(Prompt& prompt, wb::Workbook& source, int firstSheet, int lastSheet,
                      wb::Workbook& target, int targetSheet);

}  // namespace gustline
