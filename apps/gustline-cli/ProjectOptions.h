#pragma once

#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace gustline {
class Prompt;
}
namespace gustline::wb {
class Workbook;
}

namespace gustline::cli {

// The options that the project commands share: --project FILE, --set NAME=VALUE,
// --unchecked and --outline FILE.
struct ProjectOptions {
  std::optional<std::string> projectPath;                 // the default project when absent
  std::vector<std::pair<std::string, std::string>> sets;  // in the order given
  bool unchecked = false;  // --set values skip the field rules of the dialogs
  // The outline in place of the project's: X and Y on each line, as pasted into the
  // coordinate grid, an empty line between boundaries.
  std::optional<std::string> outlinePath;
  std::vector<std::string> rest;  // the arguments left over
};

// Takes --project, --set, --unchecked and --outline out of the arguments; nullopt (with a message
// on standard error) when one of them lacks its value.
std::optional<ProjectOptions> ParseProjectOptions(const std::vector<std::string>& args);

// The folder of the running program.
std::string ProgramFolder();

// Puts the --outline into the project, then writes each --set into the project as
// report::WriteProjectInput does, and recalculates. An outline that cannot be read is
// refused with a message on standard error. Unless
// --unchecked, a value is first tested against the rule of the dialog field that writes
// the cell, as its OK does: a refused value shows the dialog's message on standard error,
// and the result is false with nothing more written.
bool ApplySets(wb::Workbook& project, const ProjectOptions& options);
// The same, the dialogs' messages shown by the prompt given.
bool ApplySets(wb::Workbook& project, const ProjectOptions& options, Prompt& prompt);

// The project workbook `WindData`, read from the file or from the default project that the
// program carries, with the --set values applied; nullptr when one is refused. Facility
// errors propagate.
std::unique_ptr<wb::Workbook> OpenProject(const ProjectOptions& options);

}  // namespace gustline::cli
