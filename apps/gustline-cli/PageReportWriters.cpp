// gustline-cli report --pdf FILE and --png PREFIX: the report's pages as they print.
#include <QCoreApplication>
#include <QGuiApplication>
#include <iostream>
#include <memory>
#include <string>

#include "CliCommand.h"
#include "ReportWriters.h"
#include "core/workbook/model/Workbook.h"
#include "core/workbook/value/FacilityError.h"
#include "report/qt/ReportPrinting.h"

namespace gustline::cli {
namespace {

// The fonts and the painter need a GUI application; without a display it runs offscreen.
std::unique_ptr<QGuiApplication> GuiApplicationIfNone() {
  if (QCoreApplication::instance() != nullptr) return nullptr;
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  static int argc = 1;
  static char name[] = "gustline-cli";
  static char* argv[] = {name, nullptr};
  return std::make_unique<QGuiApplication>(argc, argv);
}

int WritePdf(const ReportOutput& output, const std::string& path) {
  if (!output.Created()) {
    std::cerr << "gustline-cli report: no report created, no PDF written\n";
    return kExitFailed;
  }
  const auto application = GuiApplicationIfNone();
  try {
    report::WriteReportPdf(output.report, path);
  } catch (const wb::FacilityError& error) {
    std::cerr << "gustline-cli report: " << error.what() << '\n';
    return kExitUsage;
  }
  return kExitOk;
}

// One picture a page at 96 dots per inch, PREFIX-1.png for the first.
int WritePng(const ReportOutput& output, const std::string& prefix) {
  if (!output.Created()) {
    std::cerr << "gustline-cli report: no report created, no picture written\n";
    return kExitFailed;
  }
  const auto application = GuiApplicationIfNone();
  try {
    for (int sheet = 1; sheet <= output.report.SheetCount(); ++sheet)
      report::WriteSheetPng(output.report, sheet, prefix + "-" + std::to_string(sheet) + ".png",
                            96);
  } catch (const wb::FacilityError& error) {
    std::cerr << "gustline-cli report: " << error.what() << '\n';
    return kExitUsage;
  }
  return kExitOk;
}

const bool pdfRegistered = RegisterReportWriter(
    "--pdf", "--pdf FILE    the report's pages as they print ('-': standard output)", WritePdf);
const bool pngRegistered = RegisterReportWriter(
    "--png", "--png PREFIX  each page as a picture, PREFIX-1.png for the first", WritePng);

}  // namespace
}  // namespace gustline::cli
