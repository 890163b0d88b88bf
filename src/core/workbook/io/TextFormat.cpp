#include "core/workbook/io/TextFormat.h"

#include "core/workbook/model/Workbook.h"

namespace gustline::wb {

void WriteText(Workbook& book, std::ostream& out) {
  const int lastRow = book.LastRow();
  const int lastCol = book.LastCol();
  for (int row = 1; row <= lastRow; ++row) {
    for (int col = 1; col <= lastCol; ++col) {
      if (col > 1) out << '\t';
      out << book.CellText(row, col);
    }
    out << "\r\n";
  }
}

}  // namespace gustline::wb
