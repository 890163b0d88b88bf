// gustline-cli areas: the projected area of the outline in each height interval.
#include <iostream>
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

int RunAreas(const std::vector<std::string>& args) {
  auto options = ParseProjectOptions(args);
  if (!options) return kExitUsage;
  if (!options->rest.empty()) {
    std::cerr << "gustline-cli areas: unexpected argument '" << options->rest.front() << "'\n";
    return kExitUsage;
  }
  try {
    const auto project = OpenProject(*options);
    if (!project) return kExitUsage;
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
