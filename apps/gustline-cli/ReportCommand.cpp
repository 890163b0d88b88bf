// gustline-cli report: the report of a project, built as the program builds it, written by
// the output options that register themselves (ReportWriters.h); --json is this file's.
#include <algorithm>
#include <iostream>
#include <string>
#include <utility>
#include <vector>

#include "CliCommand.h"
#include "NoReportReason.h"
#include "ProjectOptions.h"
#include "ReportWriters.h"
#include "core/Prompt.h"
#include "core/workbook/io/AtomicFile.h"
#include "core/workbook/model/Workbook.h"
#include "core/workbook/value/FacilityError.h"
#include "report/HeadlessReport.h"
#include "report/ReportJson.h"

namespace gustline::cli {
namespace {

int WriteJson(const ReportOutput& output, const std::string& path) {
  try {
    wb::AtomicFile file(path);
    file.Stream() << report::ReportJson(output.report, output.templateName);
    file.Commit();
  } catch (const wb::FacilityError& error) {
    std::cerr << "gustline-cli report: " << error.what() << '\n';
    return kExitUsage;
  }
  return output.Created() ? kExitOk : kExitFailed;
}

const bool jsonRegistered = RegisterReportWriter(
    "--json", "--json FILE   the report's cells as JSON ('-': standard output)", WriteJson);

void PrintWriterUsages() {
  std::cerr << "output options:\n";
  for (const std::string& usage : ReportWriterUsages()) std::cerr << "  " << usage << '\n';
}

int RunReport(const std::vector<std::string>& args) {
  const auto options = ParseProjectOptions(args);
  if (!options) return kExitUsage;
  std::vector<std::pair<ReportWriterFn, std::string>> writers;
  for (std::size_t i = 0; i < options->rest.size(); i += 2) {
    const std::string& option = options->rest[i];
    const ReportWriterFn write = FindReportWriter(option);
    if (write == nullptr || i + 1 >= options->rest.size()) {
      std::cerr << "gustline-cli report: " << (write ? "no file for " : "unknown option ") << option
                << '\n';
      PrintWriterUsages();
      return kExitUsage;
    }
    writers.emplace_back(write, options->rest[i + 1]);
  }

  StderrPrompt prompt;
  report::HeadlessReport program(ProgramFolder(), prompt);
  try {
    program.ReadProject(options->projectPath);
    if (!ApplySets(program.Project(), *options)) return kExitUsage;
  } catch (const wb::FacilityError& error) {
    std::cerr << "gustline-cli report: " << error.what() << '\n';
    return kExitUsage;
  }
  const ReportOutput output{program.App(), program.Report(), program.CreateReport()};
  if (!output.Created())
    std::cerr << "gustline-cli report: no report created: " << NoReportReason(program.Project())
              << '\n';
  else if (writers.empty())
    std::cout << output.templateName << '\n';
  int status = output.Created() ? kExitOk : kExitFailed;
  for (const auto& [write, path] : writers) status = std::max(status, write(output, path));
  return status;
}

const bool registered =
    RegisterCommand("report",
                    "report [--project FILE] [--set NAME=VALUE]... "
                    "[--outline FILE] [--unchecked] [--json FILE] [--OPTION FILE]...   build "
                    "the report and write it",
                    RunReport);

}  // namespace
}  // namespace gustline::cli
