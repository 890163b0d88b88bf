#pragma once

#include <memory>
#include <string_view>

#include "core/workbook/model/Workbook.h"
#include "core/workbook/value/CellStyle.h"

namespace gustline::report::testing {

// A cell's entry with a style on the active sheet.
inline void Put(wb::Workbook& book, int row, int col, std::string_view entry,
                const wb::CellStyle& style = {}) {
  book.SetCellEntry(row, col, entry);
  book.SetCellStyle(row, col, style);
}

inline wb::CellStyle Styled(double size, bool bold, wb::HAlign align = wb::HAlign::General,
                            std::string_view format = "General") {
  wb::CellStyle style;
  style.font.size = size;
  style.font.bold = bold;
  style.hAlign = align;
  style.numberFormat = std::string(format);
  return style;
}

// A calculation sheet as a report page shows it: a title, a boxed block of the velocity
// pressure chain with number formats, a shaded result and the footer "&A".
std::unique_ptr<wb::Workbook> VelocityPressureBook();

}  // namespace gustline::report::testing
