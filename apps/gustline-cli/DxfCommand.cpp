// gustline-cli dxf: the outline that a drawing puts into the coordinate grid.
#include <iostream>
#include <string>
#include <vector>

#include "CliCommand.h"
#include "core/Prompt.h"
#include "geometry/DxfReader.h"

namespace gustline::cli {
namespace {

int RunDxf(const std::vector<std::string>& args) {
  if (args.size() != 1) {
    std::cerr << "gustline-cli dxf: one drawing file, please\n";
    return kExitUsage;
  }
  const geometry::DxfOutline outline = geometry::ReadDxfFile(args.front());
  if (outline.message) {
    StderrPrompt().Show(*outline.message);
    return kExitFailed;
  }
  std::string text;
  for (const auto& [x, y] : outline.rows) text.append(x).append(1, '\t').append(y).append(1, '\n');
  std::cout << text;
  return kExitOk;
}

const bool registered =
    RegisterCommand("dxf", "dxf FILE   print the X<TAB>Y rows of the outline of a drawing", RunDxf);

}  // namespace
}  // namespace gustline::cli
