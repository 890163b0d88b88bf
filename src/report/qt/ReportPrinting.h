#pragma once

#include <string>

class QPagedPaintDevice;
class QPrinter;
class QWidget;

namespace gustline::wb {
class Workbook;
}

namespace gustline::report {

// The printer that Print Setup chooses and that printing uses; one for the process.
QPrinter& ReportPrinter();

// Print Setup: the printer, its orientation and paper. Raises FacilityError 20024 when the
// system has no printer.
void RunPrintSetup(QWidget* parent);

// True when the chosen printer prints landscape; Page Setup sets PrintLandscape from it.
bool PrinterIsLandscape();

// File Print and the preview's Print: every page of every sheet of the book, through the
// print dialog. False when the user cancels. Raises FacilityError 20024 when the system has
// no printer.
bool PrintReport(wb::Workbook& book, QWidget* parent);

// Paints pages `firstPage` to `lastPage` (1-based over the whole book; 0 and 0 for all) onto
// a paged device, one sheet's page per paper page, each in the orientation of its sheet.
void PrintPages(wb::Workbook& book, QPagedPaintDevice& device, int firstPage = 0, int lastPage = 0);

// The number of printed pages of the whole book.
int ReportPageCount(wb::Workbook& book);

// The whole report as a PDF that holds its text and fonts. The file is replaced only when
// the whole document was written; raises FacilityError 20012 when it cannot be written.
// Needs a QGuiApplication.
void WriteReportPdf(wb::Workbook& book, const std::string& path);

// The first page of a sheet as a PNG picture at `dpi`. Atomic like WriteReportPdf.
void WriteSheetPng(wb::Workbook& book, int sheet, const std::string& path, int dpi);

}  // namespace gustline::report
