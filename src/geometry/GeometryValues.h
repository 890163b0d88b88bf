#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "core/Prompt.h"

namespace gustline::wb {
class Workbook;
}

namespace gustline::geometry {

// The rows of the interval grid F1Book1 that the dialog reads and writes.
inline constexpr int kIntervalRows = 100;
// `Sheet2` of the project: the outline, X in column A and Y in column B.
inline constexpr int kProjectOutlineSheet = 2;

// The choices of the Geometry dialog: `Interval` (0 standard, 1, 5, 10 or 20 ft steps,
// 5 the user's lengths) and `Order` (0 descending, 1 ascending).
struct GeometryValues {
  int interval = 0;
  int order = 0;
};

GeometryValues LoadGeometry(wb::Workbook& project);

// `UserIntervals` as the lines of the grid's length column, "1.00" when it holds nothing;
// and the column's text back as the list, its entries separated by one blank.
std::string UserIntervalsRows(std::string_view userIntervals);
std::string UserIntervalsFromRows(std::string_view rows);

// F1Book1 as the dialog first shows it: From, To and Length in "0.00"; A1 0.000001 and B1
// =C1; from row 2 on, From is the To of the row above and To is From + Length, on rows
// whose length is a number.
void SetUpIntervalGrid(wb::Workbook& grid);
// The lengths of `UserIntervals` put into column C from C1, the rest of the column cleared.
void LoadIntervalGrid(wb::Workbook& grid, std::string_view userIntervals);
// The sum of the length column.
double SumOfLengths(wb::Workbook& grid);
// Cancel: until OK was once pressed for the project, the From and To columns of rows 2 on
// are cleared, formulas and all.
void CancelIntervalGrid(wb::Workbook& grid, bool okPressedBefore);

// The cells of one sheet copied over those of another, which are cleared first: the
// outline from `Sheet2` of the project into sheet 1 of the coordinate grid, and back.
void CopySheetCells(wb::Workbook& from, int fromSheet, wb::Workbook& to, int toSheet);

// A comma list in the other order: "1,2,3," becomes "3,2,1,", and back again.
std::string ReverseCommaList(std::string_view list);

// OK's check of the user lengths in mode 5, CheckRange from 1 to 2000 ft on their sum; its
// own box first, then " Sum of lengths error.". False, with nothing written, when refused.
bool CheckSumOfLengths(Prompt& prompt, double sum);

// OK's writes: `Interval`, the outline, `UserIntervals` from the grid, `Height` as the sum
// of the lengths in mode 5, and a changed `Order` with the four lists by interval reversed.
void ApplyGeometry(wb::Workbook& project, const GeometryValues& values, wb::Workbook& intervalGrid,
                   wb::Workbook& outlineGrid);

// "Interval Length should be less than total structure height." for the 1, 5, 10 and 20 ft
// steps when `Height` does not exceed the step.
std::optional<Message> HeightIntervalWarning(double height, int interval);

// The dialogs that hold a list by interval, opened when the user agrees to update them.
enum class IntervalListDialog { Figure619, Figure622, TableSpecial };

struct IntervalQuestion {
  Message message;
  IntervalListDialog dialog;
};

// The question of "Changing Interval": only for `Structure` 2 or 4 with a mode other than
// the one the dialog opened with, and `Table` 2, 5 or 6.
std::optional<IntervalQuestion> ChangingIntervalQuestion(int table, int structure, int mode,
                                                         int openedMode);

}  // namespace gustline::geometry
