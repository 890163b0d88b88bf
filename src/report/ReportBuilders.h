#pragma once

#include <string>

#include "report/ReportSelection.h"

namespace gustline {
class Prompt;
}

namespace gustline::geometry {
struct AreaContext;
}

namespace gustline::wb {
class Workbook;
}

namespace gustline::report {

// What a builder works on: the report book `ServerSS`, the project `WindData`, the prompt
// for its one message, the program's folder for the temporary file, and what the projected
// areas by height need.
struct BuildContext {
  wb::Workbook& report;
  wb::Workbook& project;
  Prompt& prompt;
  std::string applicationPath;
  const geometry::AreaContext& areas;
};

// Builds the report from the template by the builder's rules: clears the report, brings the
// template in with automatic calculation off, repeats the height rows and writes what the
// builder adds. Automatic calculation stays off for the refresh that follows. Returns false
// when the builder stopped before loading ("Halt pRowCount Error.").
bool RunBuilder(ReportBuilder builder, const wb::Workbook& templateBook,
                const BuildContext& context);

}  // namespace gustline::report
