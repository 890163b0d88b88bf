#pragma once

#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace gustline::wb {
class Workbook;
}

namespace gustline::cli {

// The options that the project commands share: --project FILE and --set NAME=VALUE.
struct ProjectOptions {
  std::optional<std::string> projectPath;                 // the default project when absent
  std::vector<std::pair<std::string, std::string>> sets;  // in the order given
  std::vector<std::string> rest;                          // the arguments left over
};

// Takes --project and --set out of the arguments; nullopt (with a message on standard
// error) when one of them lacks its value.
std::optional<ProjectOptions> ParseProjectOptions(const std::vector<std::string>& args);

// The folder of the running program.
std::string ProgramFolder();

// The project workbook `WindData`, read from the file or from the default project that the
// program carries, with each --set written (a number through WriteNamedNumber, any other
// text through WriteNamedText) and recalculated. Facility errors propagate.
std::unique_ptr<wb::Workbook> OpenProject(const ProjectOptions& options);

}  // namespace gustline::cli
