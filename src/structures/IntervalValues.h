#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "core/Prompt.h"

namespace gustline::wb {
class Workbook;
}

namespace gustline {

// The values by height interval of the chimneys of Figure 6-21, the trussed towers of Figure
// 6-23 and the special case: comma lists, one entry a row of the height list, in the order
// of its rows. A dialog shows them in a grid, the heights in columns A and B and a list in
// each column from C on.

// What a row without an entry starts with.
inline constexpr std::string_view kMissingIntervalValue = "1.00";

// The height list of the project's `Height`, `Interval`, `Order` and `UserIntervals`,
// "low<TAB>high<CR LF>" a row. A height beyond the ladder raises FacilityError.
std::string ProjectHeightRows(wb::Workbook& project);

// The entries of a list for `rows` rows: those written, as many as there are rows, and
// "1.00" for each one missing.
std::vector<std::string> IntervalEntries(std::string_view list, int rows);

// The grid of a dialog filled from the height list and the lists; the number of its rows.
// The selection is left on C1, the first list's first value.
int FillIntervalGrid(wb::Workbook& grid, std::string_view heightRows,
                     std::span<const std::string> lists);

// A list column of the grid, rows 1 to `rows`, as shown, joined by commas; with
// `trailingComma` each entry is followed by one, as the special case keeps its lists.
std::string IntervalGridList(wb::Workbook& grid, int col, int rows, bool trailingComma);

// A cell that OK refuses, and the box it gives.
struct GridFault {
  int row = 0;
  int col = 0;
  Message message;
};

// The first cell of the columns given, column by column from row 1 to `rows`, that is
// empty, or, with `positive`, that holds no number above 0; nullopt when none.
std::optional<GridFault> FindGridFault(wb::Workbook& grid, std::span<const int> cols, int rows,
                                       bool positive);

}  // namespace gustline
