#pragma once

#include <QPointF>
#include <QRectF>
#include <QSizeF>
#include <string>
#include <string_view>
#include <vector>

#include "core/workbook/address/CellAddress.h"

class QPainter;

namespace gustline::wb {
class Sheet;
class StyleTable;
class Workbook;
struct PrintSetup;
}  // namespace gustline::wb

namespace gustline::report {

// Sheet measures are in points (1/72 in). One unit of column width is one character of the
// default font: 7 px at 96 dpi.
inline constexpr double kPointsPerWidthUnit = 5.25;
inline constexpr double kDefaultRowHeight = 12.75;
// A report page is 8.5 by 11 inches.
inline constexpr double kPageWidth = 612;
inline constexpr double kPageHeight = 792;

// The edges of rows and columns from the sheet's top left. A hidden row and a column of
// width 0 take no room.
struct GridLayout {
  std::vector<double> colEdges;  // colEdges[c - 1] is the left edge of column c; cols + 1
  std::vector<double> rowEdges;  // rowEdges[r - 1] is the top edge of row r; rows + 1
  int Cols() const { return static_cast<int>(colEdges.size()) - 1; }
  int Rows() const { return static_cast<int>(rowEdges.size()) - 1; }
  double ColX(int col) const { return colEdges[static_cast<std::size_t>(col - 1)]; }
  double RowY(int row) const { return rowEdges[static_cast<std::size_t>(row - 1)]; }
  double ColWidth(int col) const { return ColX(col + 1) - ColX(col); }
  double RowHeight(int row) const { return RowY(row + 1) - RowY(row); }
  // The rectangle of an area of cells.
  QRectF AreaRect(const wb::Area& area) const;
};

// The height of a row: 12.75 pt, or more when a font in it is larger than 10 pt, in steps
// of 0.75 pt as a spreadsheet fits its rows.
double RowHeightForFont(double fontSize);

// Rows 1..rows and columns 1..cols of a sheet.
GridLayout MakeGridLayout(const wb::Sheet& sheet, const wb::StyleTable& styles, int rows, int cols);

// The cells that print: the print area when the sheet has one, otherwise from A1 to the last
// cell that holds a value or shows a border or a fill. An empty sheet gives A1.
wb::Area PrintExtent(const wb::Sheet& sheet, const wb::StyleTable& styles);

// The factor by which a sheet prints: the setup's scale, or with fit to pages the largest
// factor up to 1 that brings the content onto pagesWide by pagesTall pages; never below 0.1.
double PrintScaleFactor(const wb::PrintSetup& setup, QSizeF content, QSizeF printable);

// Splits the run of edges [first, last] into pages of at most `available` each; returns the
// first index of every page. An item wider than a page stands alone on its page.
std::vector<int> PageBreaks(const std::vector<double>& edges, int first, int last,
                            double available);

// Header or footer text split into its left, centre and right sections, with the codes
// "&A" sheet name, "&F" book name, "&P" page, "&N" pages, "&D" date, "&T" time and "&&"
// expanded; font codes are dropped. Text before any section code is centred.
struct HeaderFooterText {
  std::string left, center, right;
  bool operator==(const HeaderFooterText&) const = default;
};
struct PageContext {
  std::string sheetName;
  std::string bookName;
  int page = 1;
  int pages = 1;
};
HeaderFooterText ExpandHeaderFooter(std::string_view code, const PageContext& context);

// One printed page of a sheet: its cells and where their top left stands on the paper.
struct PrintedPage {
  wb::Area cells;
  QPointF origin;  // points from the paper's top left, before scaling of the cells
};

// How a sheet goes onto paper.
struct SheetPrintLayout {
  GridLayout grid;
  QSizeF paper;                    // points, portrait or landscape
  QRectF printable;                // within the margins
  double scale = 1;                // of the cells; margins, header and footer stay unscaled
  std::vector<PrintedPage> pages;  // down, then over
};
SheetPrintLayout LayOutSheetForPrint(const wb::Sheet& sheet, const wb::StyleTable& styles);

// How cells are painted: on paper with the sheet's grid lines and black and white switch.
struct CellPaintOptions {
  bool gridLines = false;
  bool noColor = false;
};

// Paints the cells of `area` (fills, grid lines, texts, borders) with the area's top left at
// the painter's origin, one unit a point. Left-aligned text runs on into empty cells to its
// right, within `clip` (in the same units; empty: no limit).
void DrawCells(QPainter& painter, const wb::Sheet& sheet, const wb::StyleTable& styles,
               const GridLayout& grid, const wb::Area& area, const CellPaintOptions& options,
               const QRectF& clip = QRectF());

// The number of printed pages of a sheet (1-based) of the book.
int SheetPageCount(wb::Workbook& book, int sheet);

// Paints one page of a sheet, paper, header, footer and cells, into `target` (device
// units of the painter), so that the screen, the preview, the printer, PDF and PNG show the
// same page. `number` gives "&P" and "&N"; pages are counted from 1 within the sheet when it
// is left at 0.
void DrawSheetPage(QPainter& painter, const QRectF& target, wb::Workbook& book, int sheet, int page,
                   int number = 0, int numberOfPages = 0);
// The same with the sheet's layout made beforehand, once for all its pages; the book is
// calculated.
void DrawSheetPage(QPainter& painter, const QRectF& target, wb::Workbook& book, int sheet,
                   const SheetPrintLayout& layout, int page, int number = 0, int numberOfPages = 0);

}  // namespace gustline::report
