#pragma once

#include <string>

namespace gustline::wb {
class Workbook;
}

namespace gustline::report {

// The selected cells of a book's active sheet as the system clipboard takes them: text with
// fields at TAB and rows at CR LF for a spreadsheet, and an HTML table for a word processor,
// each cell as shown and bold where the page is bold. Rows the page hides are left out, and
// so is what lies beyond the sheet's last used row and column.
struct ClipboardCopy {
  std::string text;
  std::string html;
};

ClipboardCopy CopyForClipboard(wb::Workbook& book);

}  // namespace gustline::report
