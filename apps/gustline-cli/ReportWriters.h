#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace gustline {
struct Application;
namespace wb {
class Workbook;
}
}  // namespace gustline

namespace gustline::cli {

// What `gustline-cli report` made: the running core, the report book `ServerSS`, and the
// name of the template the report was built from, empty when no report was created.
struct ReportOutput {
  Application& app;
  wb::Workbook& report;
  std::string templateName;
  bool Created() const { return !templateName.empty(); }
};

// Writes the report to the file named after the option ("-" for standard output where the
// writer allows it); returns the exit status (see CliCommand.h). A writer is called also
// when no report was created, so that it can say so.
using ReportWriterFn = int (*)(const ReportOutput& output, const std::string& path);

// Each output option of `report` registers itself from its own file:
//   const bool registered = RegisterReportWriter("--txt", "--txt FILE  tab-delimited text",
//   WriteTxt);
bool RegisterReportWriter(std::string_view option, std::string_view usage, ReportWriterFn write);

// The writer of an option such as "--json"; nullptr when none is registered.
ReportWriterFn FindReportWriter(std::string_view option);

// The usage lines of the registered options, in the order of their options.
std::vector<std::string> ReportWriterUsages();

}  // namespace gustline::cli
