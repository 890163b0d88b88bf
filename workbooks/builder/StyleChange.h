#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "SourceText.h"
#include "core/workbook/address/CellAddress.h"
#include "core/workbook/value/CellStyle.h"

namespace gustline::books {

// What one 'style' line changes in the cells of its range: only the keys it gives, so that
// several lines on the same cells merge. Borders are line style numbers as in CellStyle.h.
struct StyleChange {
  std::optional<bool> bold, italic, underline, wrap;
  std::optional<std::string> font, format;
  std::optional<double> size;
  std::optional<wb::HAlign> align;
  std::optional<wb::VAlign> valign;
  std::optional<std::uint32_t> color, fill;
  std::optional<int> left, right, top, bottom;
  // The outline of the whole range rather than of each cell.
  std::optional<int> box;
};

// Reads the keys of a 'style' line from words[first] on: bold, italic, underline, wrap
// (each also =0 or =1), font=NAME, size=N, format="0.000", align=, valign=, color=#RRGGBB,
// fill=#RRGGBB, border=N, left=N, right=N, top=N, bottom=N, box=N. A later key wins.
StyleChange ReadStyleChange(const std::vector<std::string>& words, std::size_t first,
                            const SourceLocation& where);

// The change applied to the style of the cell (row, col) of `range`.
void ApplyStyleChange(const StyleChange& change, const wb::Area& range, int row, int col,
                      wb::CellStyle& style);

}  // namespace gustline::books
