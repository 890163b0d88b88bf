#include "ProjectOptions.h"

#include <filesystem>
#include <iostream>

#include "core/Prompt.h"
#include "core/StartUp.h"
#include "core/workbook/model/Workbook.h"
#include "report/HeadlessReport.h"
#include "ui/rules/CellRules.h"

namespace gustline::cli {

std::optional<ProjectOptions> ParseProjectOptions(const std::vector<std::string>& args) {
  ProjectOptions options;
  for (std::size_t i = 0; i < args.size(); ++i) {
    const std::string& arg = args[i];
    if (arg == "--unchecked") {
      options.unchecked = true;
      continue;
    }
    if (arg == "--project" || arg == "--set") {
      if (i + 1 >= args.size()) {
        std::cerr << "gustline-cli: " << arg << " needs a value\n";
        return std::nullopt;
      }
      const std::string& value = args[++i];
      if (arg == "--project") {
        options.projectPath = value;
        continue;
      }
      const auto equals = value.find('=');
      if (equals == std::string::npos || equals == 0) {
        std::cerr << "gustline-cli: --set takes NAME=VALUE, not '" << value << "'\n";
        return std::nullopt;
      }
      options.sets.emplace_back(value.substr(0, equals), value.substr(equals + 1));
      continue;
    }
    options.rest.push_back(arg);
  }
  return options;
}

std::string ProgramFolder() {
  std::error_code error;
  const auto exe = std::filesystem::read_symlink("/proc/self/exe", error);
  return error ? std::string(".") : exe.parent_path().string();
}

bool ApplySets(wb::Workbook& project, const ProjectOptions& options) {
  StderrPrompt prompt;
  for (const auto& [name, value] : options.sets) {
    if (!options.unchecked && !rules::CheckCellInput(prompt, name, value)) return false;
    report::WriteProjectInput(project, name, value);
  }
  project.Recalc();
  return true;
}

std::unique_ptr<wb::Workbook> OpenProject(const ProjectOptions& options) {
  auto project = std::make_unique<wb::Workbook>("WindData");
  project->ReadWorkbook(options.projectPath.value_or(CarriedProjectPath(ProgramFolder())));
  if (!ApplySets(*project, options)) return nullptr;
  return project;
}

}  // namespace gustline::cli
