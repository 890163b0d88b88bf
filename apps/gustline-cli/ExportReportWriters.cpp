// gustline-cli report --txt FILE and --xls FILE: the report exported as Save As exports
// it, its pages stacked as results on the first sheet of `BufferSS`.
#include <iostream>
#include <string>

#include "CliCommand.h"
#include "ReportWriters.h"
#include "core/FileSaveAs.h"
#include "core/workbook/value/FacilityError.h"

namespace gustline::cli {
namespace {

int Export(const ReportOutput& output, const std::string& path, wb::FileType type) {
  if (!output.Created()) {
    std::cerr << "gustline-cli report: no report created, nothing exported\n";
    return kExitFailed;
  }
  try {
    ExportReport(output.app, path, type);
  } catch (const wb::FacilityError& error) {
    std::cerr << "gustline-cli report: " << error.what() << '\n';
    return kExitUsage;
  }
  return kExitOk;
}

int WriteTxt(const ReportOutput& output, const std::string& path) {
  return Export(output, path, wb::FileType::Text);
}

int WriteXls(const ReportOutput& output, const std::string& path) {
  return Export(output, path, wb::FileType::Excel5);
}

const bool txtRegistered = RegisterReportWriter(
    "--txt", "--txt FILE    the report as tab-delimited text ('-': standard output)", WriteTxt);
const bool xlsRegistered = RegisterReportWriter(
    "--xls", "--xls FILE    the report as an Excel 5.0 workbook ('-': standard output)", WriteXls);

}  // namespace
}  // namespace gustline::cli
