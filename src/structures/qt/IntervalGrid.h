#pragma once

#include <QString>
#include <QStringList>
#include <array>
#include <span>
#include <string>

namespace gustline {
class Prompt;
}

namespace gustline::wb {
class Workbook;
}

namespace gustline::grid {
class SheetGrid;
}

namespace gustline {

// The grid of a dialog of values by height interval over its own book: the project's height
// list, "From" and "To" in feet, then a column of each list, which alone take typing. The
// first value is the current cell. Returns the number of rows; a height beyond the ladder
// raises FacilityError.
int ShowIntervalGrid(grid::SheetGrid& grid, wb::Workbook& book, wb::Workbook& project,
                     Prompt& prompt, const QStringList& listHeadings,
                     std::span<const std::string> lists);

// A right click on the grid makes the cell under it current and opens the edit menu with
// the captions of Cut, Copy, Paste, Clear and Copy Down.
void AddIntervalGridMenu(grid::SheetGrid& grid, const std::array<QString, 5>& captions);

// OK's check of the list columns: false, with the box shown and the cell it names open for
// typing, when a cell is empty or, with `positive`, holds no number above 0.
bool CheckIntervalGrid(grid::SheetGrid& grid, Prompt& prompt, std::span<const int> cols, int rows,
                       bool positive);

}  // namespace gustline
