// gustline-cli heights: the height columns of a report's tables and their row count.
#include <iostream>
#include <string>
#include <vector>

#include "CliCommand.h"
#include "ProjectOptions.h"
#include "core/workbook/model/NamedCells.h"
#include "core/workbook/model/Workbook.h"
#include "core/workbook/value/FacilityError.h"
#include "geometry/HeightList.h"

namespace gustline::cli {
namespace {

int RunHeights(const std::vector<std::string>& args) {
  const auto options = ParseProjectOptions(args);
  if (!options) return kExitUsage;
  if (!options->rest.empty()) {
    std::cerr << "gustline-cli heights: unexpected argument '" << options->rest.front() << "'\n";
    return kExitUsage;
  }
  try {
    const auto project = OpenProject(*options);
    const double height = wb::ReadNamedNumber(*project, "Height");
    const int interval = wb::ReadNamedInt(*project, "Interval");
    const int order = wb::ReadNamedInt(*project, "Order");
    const std::string userIntervals = wb::ReadNamedText(*project, "UserIntervals");
    const std::string text = geometry::BuildHeightText(height, interval, order, userIntervals);
    const int rows = geometry::CountHeightRows(height, interval, userIntervals);
    std::cout << text << "rows\t" << rows << '\n';
  } catch (const wb::FacilityError& error) {
    std::cerr << "gustline-cli heights: " << error.what() << '\n';
    return kExitUsage;
  }
  return kExitOk;
}

const bool registered = RegisterCommand(
    "heights",
    "heights [--project FILE] [--set NAME=VALUE]...   print the height rows, then rows<TAB>N",
    RunHeights);

}  // namespace
}  // namespace gustline::cli
