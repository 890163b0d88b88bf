#include "report/ReportClipboard.h"

#include <algorithm>

#include "core/workbook/model/Workbook.h"

namespace gustline::report {
namespace {

std::string HtmlEscaped(const std::string& text) {
  std::string escaped;
  for (const char c : text) {
    switch (c) {
      case '&':
        escaped += "&amp;";
        break;
      case '<':
        escaped += "&lt;";
        break;
      case '>':
        escaped += "&gt;";
        break;
      default:
        escaped += c;
    }
  }
  return escaped;
}

std::string HtmlCell(const std::string& text, const wb::CellStyle& style) {
  std::string cell = "<td";
  if (style.hAlign == wb::HAlign::Center) cell += " align=\"center\"";
  if (style.hAlign == wb::HAlign::Right) cell += " align=\"right\"";
  cell += '>';
  const std::string shown = HtmlEscaped(text);
  cell += style.font.bold ? "<b>" + shown + "</b>" : shown;
  return cell + "</td>";
}

}  // namespace

ClipboardCopy CopyForClipboard(wb::Workbook& book) {
  book.EnsureCalculated();
  const int firstRow = std::max(1, book.SelFirstRow());
  const int firstCol = std::max(1, book.SelFirstCol());
  const int lastRow = std::min(book.SelLastRow(), book.LastRow());
  const int lastCol = std::min(book.SelLastCol(), book.LastCol());
  ClipboardCopy copy;
  copy.html = "<table>";
  for (int row = firstRow; row <= lastRow; ++row) {
    if (book.RowHidden(row)) continue;
    copy.html += "<tr>";
    for (int col = firstCol; col <= lastCol; ++col) {
      const std::string text = book.CellText(row, col);
      if (col > firstCol) copy.text += '\t';
      copy.text += text;
      copy.html += HtmlCell(text, book.GetCellStyle(row, col));
    }
    copy.text += "\r\n";
    copy.html += "</tr>";
  }
  copy.html += "</table>";
  return copy;
}

}  // namespace gustline::report
