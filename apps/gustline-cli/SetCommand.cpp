// gustline-cli set: writes named cells of a project file and saves it.
#include <iostream>
#include <string>
#include <vector>

#include "CliCommand.h"
#include "ProjectOptions.h"
#include "core/workbook/model/Workbook.h"
#include "core/workbook/value/FacilityError.h"

namespace gustline::cli {
namespace {

constexpr const char* kUsage =
    "set FILE NAME=VALUE... [--unchecked] [-o OUT]   write cells and save the project";

int RunSet(const std::vector<std::string>& args) {
  ProjectOptions options;
  std::string outPath;
  for (std::size_t i = 0; i < args.size(); ++i) {
    const std::string& arg = args[i];
    if (arg == "-o") {
      if (i + 1 >= args.size()) {
        std::cerr << "gustline-cli set: -o needs a file\n";
        return kExitUsage;
      }
      outPath = args[++i];
      continue;
    }
    if (arg == "--unchecked") {
      options.unchecked = true;
      continue;
    }
    if (!options.projectPath) {
      options.projectPath = arg;
      continue;
    }
    const auto equals = arg.find('=');
    if (equals == std::string::npos || equals == 0) {
      std::cerr << "gustline-cli set: expected NAME=VALUE, not '" << arg << "'\n";
      return kExitUsage;
    }
    options.sets.emplace_back(arg.substr(0, equals), arg.substr(equals + 1));
  }
  if (!options.projectPath || options.sets.empty()) {
    std::cerr << "usage: gustline-cli " << kUsage << '\n';
    return kExitUsage;
  }
  try {
    const auto project = OpenProject(options);
    if (!project) return kExitUsage;
    project->WriteWorkbook(outPath.empty() ? *options.projectPath : outPath, wb::FileType::Native);
  } catch (const wb::FacilityError& error) {
    std::cerr << "gustline-cli set: " << error.what() << '\n';
    return kExitUsage;
  }
  return kExitOk;
}

const bool registered = RegisterCommand("set", kUsage, RunSet);

}  // namespace
}  // namespace gustline::cli
