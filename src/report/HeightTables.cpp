#include "report/HeightTables.h"

#include <utility>

#include "core/workbook/address/CellAddress.h"
#include "core/workbook/model/Workbook.h"
#include "core/workbook/value/Value.h"
#include "geometry/HeightList.h"

namespace gustline::report {
namespace {

constexpr int kThinLine = 1;
constexpr int kUnchanged = -1;
constexpr const char* kForceFormat = "#,###";
constexpr const char* kLineEnd = "\r\n";

// The height cells of the selected table, extended to the rows and one column, filled.
void FillHeights(wb::Workbook& report, std::string_view start, int rows,
                 std::string_view heightText) {
  report.SetSelection(start);
  report.SetSelLastRow(report.SelFirstRow() + rows - 1);
  report.SetSelLastCol(report.SelLastCol() + 1);
  report.CopyDown();
  report.SetClipText(heightText);
}

// A thin bottom line under the last row of the selected sample row and its height columns,
// keeping every other line and colour.
void DrawClosingLine(wb::Workbook& report) {
  report.SetSelFirstRow(report.SelLastRow());
  report.SetSelFirstCol(report.SelFirstCol() - 2);
  const wb::BorderInfo border = report.GetBorder();
  report.SetBorder(kUnchanged, kUnchanged, kUnchanged, kUnchanged, kThinLine, kUnchanged,
                   kUnchanged, border.leftColor, border.rightColor, border.topColor,
                   border.bottomColor);
}

void SetSummaryFormula(wb::Workbook& report, int row, int col, const std::string& formula) {
  report.SetActiveCell(row, col);
  report.SetActiveFormula(formula);
  report.SetNumberFormat(kForceFormat);
}

}  // namespace

void FillHeightTable(wb::Workbook& report, std::string_view start, std::string_view topRow,
                     int rows, std::string_view heightText) {
  FillHeights(report, start, rows, heightText);
  report.SetSelection(topRow);
  report.SetSelLastRow(report.SelFirstRow() + rows - 1);
  report.CopyDown();
  DrawClosingLine(report);
}

ForcesTable FillForcesTable(wb::Workbook& report, const ForcesTableNames& names, int rows,
                            std::string_view heightText, std::string_view areaText, int order) {
  FillHeights(report, names.start, rows, heightText);
  const int c = report.SelFirstCol();
  const int s = report.SelLastRow() + 4;

  report.SetSelection(names.topRow);
  report.SetSelLastRow(report.SelFirstRow() + rows - 1);
  // Another order leaves no base row, and the references below then fail to parse.
  int baseRow = 0;
  if (order == 0) baseRow = report.SelLastRow();
  if (order == 1) baseRow = report.SelFirstRow();
  const int shearCol = report.SelLastCol() - 2;
  const int momentCol = report.SelLastCol();
  report.CopyDown();
  DrawClosingLine(report);

  report.SetSelection(names.startArea);
  report.SetClipText(areaText);
  report.SetSelection(names.startArea);
  // One row past the intervals: it is empty and leaves the sum as it is.
  report.SetSelLastRow(report.SelLastRow() + rows);
  const std::string total = "Sum(" + report.Selection() + ")";

  report.SetCellEntry(s, c, "Total Area");
  report.SetCellEntry(s + 1, c, "Base Shear");
  report.SetCellEntry(s + 2, c, "Base Moment");
  report.SetCellEntry(s, c + 3, "(sq. ft.)");
  report.SetCellFormula(s + 1, c + 3, "[WindData]sheet3!U_Str_Force");
  report.SetCellFormula(s + 2, c + 3, "[WindData]sheet3!U_Str_Moment");
  SetSummaryFormula(report, s, c + 2, total);
  SetSummaryFormula(report, s + 1, c + 2, wb::CellRefText(baseRow, shearCol, true));
  SetSummaryFormula(report, s + 2, c + 2, wb::CellRefText(baseRow, momentCol, true));

  // Shear and moment run through the rows in a chain; with automatic calculation off they
  // settle after at most one pass per row. The engine calculates in dependency order, so
  // the passes stop as soon as one leaves the base shear and moment as they were, and are
  // not needed at all when the engine's pass settled without iteration.
  const auto base = [&report, s, c] {
    return std::pair(report.CellValue(s + 1, c + 2), report.CellValue(s + 2, c + 2));
  };
  report.Recalc();
  for (int pass = 1; pass <= rows && !report.RecalcSettled(); ++pass) {
    const auto before = base();
    report.Recalc();
    if (base() == before) break;
  }
  return ForcesTable{c, s};
}

std::string OneValuePerLine(std::string_view blankList) {
  std::string lines;
  std::size_t pos = 0;
  while (pos < blankList.size()) {
    const std::size_t blank = blankList.find(' ', pos);
    const std::size_t end = blank == std::string_view::npos ? blankList.size() : blank;
    if (end > pos) lines.append(blankList.substr(pos, end - pos)).append(kLineEnd);
    pos = end + 1;
  }
  return lines;
}

std::string CommaListLines(std::string_view commaList) {
  std::string lines;
  for (const double value : geometry::ReadCommaList(commaList))
    lines.append(wb::FormatShortest(value)).append(kLineEnd);
  return lines;
}

}  // namespace gustline::report
