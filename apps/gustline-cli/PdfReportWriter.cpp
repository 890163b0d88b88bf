// gustline-cli report --pdf FILE: the report's pages as they print.
#include <QCoreApplication>
#include <QGuiApplication>
#include <iostream>
#include <memory>

#include "CliCommand.h"
#include "ReportWriters.h"
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

const bool registered = RegisterReportWriter(
    "--pdf", "--pdf FILE    the report's pages as they print ('-': standard output)", WritePdf);

}  // namespace
}  // namespace gustline::cli
