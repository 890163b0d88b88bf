#include "ProjectOptions.h"

#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>

#include "core/Prompt.h"
#include "core/StartUp.h"
#include "core/workbook/model/Workbook.h"
#include "geometry/GeometryValues.h"
#include "report/HeadlessReport.h"
#include "ui/grid/GridEditor.h"
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
    if (arg == "--project" || arg == "--set" || arg == "--outline") {
      if (i + 1 >= args.size()) {
        std::cerr << "gustline-cli: " << arg << " needs a value\n";
        return std::nullopt;
      }
      const std::string& value = args[++i];
      if (arg == "--project" || arg == "--outline") {
        (arg == "--project" ? options.projectPath : options.outlinePath) = value;
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

namespace {

// The project's outline sheet, `Sheet2`, replaced by the rows of a file.
bool ReplaceOutline(wb::Workbook& project, const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  const std::string text((std::istreambuf_iterator<char>(file)), std::istreambuf_iterator<char>());
  if (!file && !file.eof()) return false;
  const int previousSheet = project.ActiveSheet();
  project.SetActiveSheet(geometry::kProjectOutlineSheet);
  project.SetSelectionRC(-1, -1, -1, -1);
  project.ClearRange(3);
  project.SetSelection("A1");
  project.SetClipText(grid::GridRowsText(text));
  project.SetActiveSheet(previousSheet);
  return true;
}

}  // namespace

bool ApplySets(wb::Workbook& project, const ProjectOptions& options) {
  StderrPrompt prompt;
  return ApplySets(project, options, prompt);
}

bool ApplySets(wb::Workbook& project, const ProjectOptions& options, Prompt& prompt) {
  if (options.outlinePath && !ReplaceOutline(project, *options.outlinePath)) {
    std::cerr << "gustline-cli: cannot read the outline '" << *options.outlinePath << "'\n";
    return false;
  }
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
