#pragma once

#include <string>
#include <string_view>

namespace gustline::wb {
class Workbook;
}

namespace gustline::report {

// The names of one forces table of a report: heights, sample row and area column.
struct ForcesTableNames {
  const char* start;
  const char* topRow;
  const char* startArea;
};

// Repeats a table's height cells (`start`) and sample row (`topRow`) over `rows` rows,
// writes the height text into the height columns and draws a thin line under the last row.
void FillHeightTable(wb::Workbook& report, std::string_view start, std::string_view topRow,
                     int rows, std::string_view heightText);

// A forces table: the rows as FillHeightTable, the areas, the "Total Area", "Base Shear"
// and "Base Moment" block four rows under the table, and `rows` + 1 recalculations for the
// running shear and moment. `Order` 0 takes the base from the last row, 1 from the first.
struct ForcesTable {
  int firstColumn = 0;  // of the height cells
  int summaryRow = 0;   // "Total Area"
};
ForcesTable FillForcesTable(wb::Workbook& report, const ForcesTableNames& names, int rows,
                            std::string_view heightText, std::string_view areaText, int order);

// A list of one value per report line: "1.00 2.00 " or "1,2" as "1.00\r\n2.00\r\n".
std::string OneValuePerLine(std::string_view blankList);
std::string CommaListLines(std::string_view commaList);

}  // namespace gustline::report
