#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "core/Application.h"
#include "core/ApplicationView.h"
#include "core/ProcessState.h"
#include "core/Settings.h"
#include "report/ReportGenerator.h"

namespace gustline {
class Prompt;
}

namespace gustline::report {

// The program without a window around its report generator, as the command line runs it:
// the project `WindData`, the report `ServerSS`, settings in memory. Message boxes go to the
// prompt given.
class HeadlessReport {
 public:
  HeadlessReport(const std::string& programFolder, Prompt& prompt);

  // Reads the project file, or the project the program carries, with the late names that
  // every start defines. Facility errors propagate.
  void ReadProject(const std::optional<std::string>& path);
  // Builds the report as the program does; the template's name, empty when no report was
  // built (the reason is then in the prompt's messages).
  std::string CreateReport();

  wb::Workbook& Project() { return state_.ProjectWorkbook(); }
  wb::Workbook& Report() { return state_.ReportWorkbook(); }
  // The running core, for what acts on the report after it is built (exports).
  Application& App() { return app_; }

 private:
  ProcessState state_;
  NullView view_;
  MemorySettings settings_;
  ReportGenerator generator_;
  Application app_;
};

// Writes a project input as the command line's --set does: a number (as wb::ReadNumber
// reads it) through WriteNamedNumber, any other text through WriteNamedText. Facility
// errors (an unknown name) propagate.
void WriteProjectInput(wb::Workbook& project, std::string_view name, std::string_view value);

}  // namespace gustline::report
