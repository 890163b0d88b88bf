// gustline-cli areas: the projected area of the outline in each height interval.
#include <fstream>
#include <iostream>
#include <optional>
#include <string>
#include <vector>

#include "CliCommand.h"
#include "ProjectOptions.h"
#include "core/Prompt.h"
#include "core/workbook/model/Workbook.h"
#include "core/workbook/value/FacilityError.h"
#include "geometry/IntervalAreas.h"
#include "geometry/Nudge.h"

namespace gustline::cli {
namespace {

constexpr int kOutlineSheet = 2;

// Replaces the outline of the project by a file of X<TAB>Y lines, with empty lines
// between boundaries. False when the file cannot be read.
bool ReplaceOutline(wb::Workbook& project, const std::string& path) {
  std::ifstream file(path);
  if (!file) return false;
  const int previousSheet = project.ActiveSheet();
  project.SetActiveSheet(kOutlineSheet);
  project.SetSelectionRC(-1, -1, -1, -1);
  project.ClearRange(3);
  std::string line;
  for (int row = 1; std::getline(file, line); ++row) {
    if (!line.empty() && line.back() == '\r') line.pop_back();
    const auto tab = line.find('\t');
    project.SetCellEntry(row, 1, line.substr(0, tab));
    if (tab != std::string::npos) project.SetCellEntry(row, 2, line.substr(tab + 1));
  }
  project.SetActiveSheet(previousSheet);
  return !file.bad();
}

int RunAreas(const std::vector<std::string>& args) {
  auto options = ParseProjectOptions(args);
  if (!options) return kExitUsage;
  std::optional<std::string> outlinePath;
  const auto& rest = options->rest;
  for (std::size_t i = 0; i < rest.size(); ++i) {
    if (rest[i] == "--outline" && i + 1 < rest.size()) {
      outlinePath = rest[++i];
      continue;
    }
    std::cerr << "gustline-cli areas: unexpected argument '" << rest[i] << "'\n";
    return kExitUsage;
  }
  try {
    const auto project = OpenProject(*options);
    if (outlinePath && !ReplaceOutline(*project, *outlinePath)) {
      std::cerr << "gustline-cli areas: cannot read the outline '" << *outlinePath << "'\n";
      return kExitUsage;
    }
    StderrPrompt prompt;
    geometry::CutRandom random;
    const geometry::AreaContext context{prompt, random, false, nullptr};
    std::cout << geometry::GetIntervalAreas(*project, context) << '\n';
  } catch (const wb::FacilityError& error) {
    std::cerr << "gustline-cli areas: " << error.what() << '\n';
    return kExitUsage;
  }
  return kExitOk;
}

const bool registered = RegisterCommand(
    "areas",
    "areas [--project FILE] [--set NAME=VALUE]... [--outline FILE]   print the projected area "
    "of each height interval",
    RunAreas);

}  // namespace
}  // namespace gustline::cli
