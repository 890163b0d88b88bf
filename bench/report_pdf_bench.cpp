// The PDF of a long report: one sheet of 16,000 rows of numbers, about 250 pages, written as
// File Export and gustline-cli write it.
#include <benchmark/benchmark.h>

#include <QBuffer>
#include <QGuiApplication>
#include <QPdfWriter>

#include "OffscreenApplication.h"
#include "core/workbook/model/Workbook.h"
#include "report/qt/ReportPrinting.h"

namespace {

void BM_LongReportPdf(benchmark::State& bench) {
  OffscreenApplication<QGuiApplication>();
  gustline::wb::Workbook book("Long");
  for (int row = 1; row <= 16000; ++row) {
    book.SetCellNumber(row, 1, row);
    for (int col = 2; col <= 8; ++col) book.SetCellNumber(row, col, row * 0.25 + col);
  }
  for (auto _ : bench) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    writer.setResolution(1200);
    gustline::report::PrintPages(book, writer);
    benchmark::DoNotOptimize(bytes.size());
  }
}
BENCHMARK(BM_LongReportPdf)->Unit(benchmark::kMillisecond)->Iterations(1);

}  // namespace
