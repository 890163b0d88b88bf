#pragma once

#include <string>
#include <vector>

#include "report/TemplateCheckFile.h"

namespace gustline::report {

// A check that did not hold, at its line: "path:line: expected ..., got ...".
struct CheckFailure {
  std::string path;
  int line = 0;
  std::string message;
  std::string Text() const;
};

struct CheckRun {
  int checks = 0;  // the template and expect lines run
  std::vector<CheckFailure> failures;
};

// Runs every case as the program would: the default project that the program in the
// folder carries, the inputs written in order, the report built by the report generator
// before the first check after them. A case stops at the first input or build that fails.
CheckRun RunCheckFile(const CheckFile& file, const std::string& programFolder);

}  // namespace gustline::report
