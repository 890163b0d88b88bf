#include "report/qt/ReportPrinting.h"

#include <QBuffer>
#include <QImage>
#include <QPageLayout>
#include <QPageSetupDialog>
#include <QPainter>
#include <QPdfWriter>
#include <QPrintDialog>
#include <QPrinter>
#include <QPrinterInfo>
#include <cmath>
#include <vector>

#include "core/workbook/io/AtomicFile.h"
#include "core/workbook/model/Sheet.h"
#include "core/workbook/model/Workbook.h"
#include "core/workbook/value/FacilityError.h"
#include "report/qt/SheetRenderer.h"

namespace gustline::report {
namespace {

constexpr double kMetresPerInch = 0.0254;

void RequirePrinter() {
  if (QPrinterInfo::availablePrinters().isEmpty())
    throw wb::FacilityError(wb::errc::kNoPrinter, "No printer is installed on the system.");
}

QPageLayout PaperOf(const wb::Sheet& sheet) {
  return QPageLayout(QPageSize(QPageSize::Letter),
                     sheet.Print().landscape ? QPageLayout::Landscape : QPageLayout::Portrait,
                     QMarginsF(0, 0, 0, 0));
}

void WriteAtomically(const std::string& path, const QByteArray& bytes) {
  wb::AtomicFile file(path);
  file.Stream().write(bytes.constData(), bytes.size());
  file.Commit();
}

}  // namespace

QPrinter& ReportPrinter() {
  static QPrinter printer(QPrinter::HighResolution);
  return printer;
}

void RunPrintSetup(QWidget* parent) {
  RequirePrinter();
  QPageSetupDialog dialog(&ReportPrinter(), parent);
  dialog.exec();
}

bool PrinterIsLandscape() {
  return ReportPrinter().pageLayout().orientation() == QPageLayout::Landscape;
}

int ReportPageCount(wb::Workbook& book) {
  int pages = 0;
  for (int sheet = 1; sheet <= book.SheetCount(); ++sheet) pages += SheetPageCount(book, sheet);
  return pages;
}

void PrintPages(wb::Workbook& book, QPagedPaintDevice& device, int firstPage, int lastPage) {
  // Each sheet is laid out once, for the count of pages and for all its pages.
  book.EnsureCalculated();
  std::vector<SheetPrintLayout> layouts;
  int pages = 0;
  for (int sheet = 1; sheet <= book.SheetCount(); ++sheet) {
    layouts.push_back(LayOutSheetForPrint(book.GetSheet(sheet), book.Styles()));
    pages += static_cast<int>(layouts.back().pages.size());
  }
  if (firstPage < 1) firstPage = 1;
  if (lastPage < 1 || lastPage > pages) lastPage = pages;
  QPainter painter;
  int number = 0;
  for (int sheet = 1; sheet <= book.SheetCount(); ++sheet) {
    const SheetPrintLayout& layout = layouts[static_cast<std::size_t>(sheet - 1)];
    const int sheetPages = static_cast<int>(layout.pages.size());
    for (int page = 0; page < sheetPages; ++page) {
      ++number;
      if (number < firstPage || number > lastPage) continue;
      device.setPageLayout(PaperOf(book.GetSheet(sheet)));
      if (!painter.isActive()) {
        if (!painter.begin(&device))
          throw wb::FacilityError(wb::errc::kFileWrite, "The printer cannot start the report.");
      } else {
        device.newPage();
      }
      DrawSheetPage(painter, QRectF(0, 0, device.width(), device.height()), book, sheet, layout,
                    page, number, pages);
    }
  }
  if (painter.isActive()) painter.end();
}

bool PrintReport(wb::Workbook& book, QWidget* parent) {
  RequirePrinter();
  QPrinter& printer = ReportPrinter();
  printer.setFullPage(true);
  QPrintDialog dialog(&printer, parent);
  dialog.setMinMax(1, ReportPageCount(book));
  dialog.setOption(QAbstractPrintDialog::PrintPageRange);
  if (dialog.exec() != QDialog::Accepted) return false;
  const bool range = printer.printRange() == QPrinter::PageRange;
  PrintPages(book, printer, range ? printer.fromPage() : 0, range ? printer.toPage() : 0);
  return true;
}

void WriteReportPdf(wb::Workbook& book, const std::string& path) {
  QByteArray bytes;
  {
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    writer.setTitle(QString::fromStdString(book.Title().empty() ? book.BookName() : book.Title()));
    writer.setCreator(QStringLiteral("Gustline"));
    writer.setResolution(1200);
    PrintPages(book, writer);
  }
  WriteAtomically(path, bytes);
}

void WriteSheetPng(wb::Workbook& book, int sheet, const std::string& path, int dpi) {
  const bool landscape = book.GetSheet(sheet).Print().landscape;
  const double width = (landscape ? kPageHeight : kPageWidth) / 72 * dpi;
  const double height = (landscape ? kPageWidth : kPageHeight) / 72 * dpi;
  QImage image(static_cast<int>(std::lround(width)), static_cast<int>(std::lround(height)),
               QImage::Format_RGB32);
  const int dotsPerMetre = static_cast<int>(std::lround(dpi / kMetresPerInch));
  image.setDotsPerMeterX(dotsPerMetre);
  image.setDotsPerMeterY(dotsPerMetre);
  image.fill(Qt::white);
  {
    QPainter painter(&image);
    DrawSheetPage(painter, QRectF(0, 0, image.width(), image.height()), book, sheet, 0);
  }
  QByteArray bytes;
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::WriteOnly);
  if (!image.save(&buffer, "PNG"))
    throw wb::FacilityError(wb::errc::kFileWrite, "The picture of the page cannot be made.");
  WriteAtomically(path, bytes);
}

}  // namespace gustline::report
