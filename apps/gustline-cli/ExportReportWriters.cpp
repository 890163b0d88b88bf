// gustline-cli report --txt FILE and --xls FILE: the report exported as Save As exports
// it, its pages stacked as results on the first sheet of `BufferSS`.
#include <iostream>
#include <string>

#include "CliCommand.h"
#include "ReportWriters.h"
#include "core/Application.h"
#include "core/CopyBookToBuffer.h"
#include "core/FileSaveAs.h"
#include "core/ProcessState.h"
#include "core/workbook/FacilityError.h"
#include "core/workbook/TextFormat.h"
#include "core/workbook/Workbook.h"

namespace gustline::cli {
namespace {

int Export(const ReportOutput& output, const std::string& path, wb::FileType type) {
  if (!output.Created()) {
    std::cerr << "gustline-cli report: no report created, nothing exported\n";
    return kExitFailed;
  }
  try {
    if (path != "-") {
      ExportReport(output.app, path, type);
    } else if (type == wb::FileType::Text) {
      wb::Workbook& buffer = output.app.state.BufferWorkbook();
      buffer.ClearAll();
      CopyBookToBuffer(output.app.prompt, output.report, -1, -1, buffer, 1);
      wb::WriteText(buffer, std::cout);
    } else {
      std::cerr << "gustline-cli report: --xls needs a file name\n";
      return kExitUsage;
    }
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
const bool xlsRegistered =
    RegisterReportWriter("--xls", "--xls FILE    the report as an Excel 5.0 workbook", WriteXls);

}  // namespace
}  // namespace gustline::cli
