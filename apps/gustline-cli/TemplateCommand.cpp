// gustline-cli template: a built report template written out in the native text format.
#include <iostream>
#include <optional>
#include <string>
#include <vector>

#include "CliCommand.h"
#include "ProjectOptions.h"
#include "core/workbook/model/Workbook.h"
#include "core/workbook/value/FacilityError.h"
#include "report/TemplateCatalog.h"

namespace gustline::cli {
namespace {

struct TemplateArgs {
  std::string name;
  std::string container;
  std::string output;
};

std::optional<TemplateArgs> ParseTemplateArgs(const std::vector<std::string>& args) {
  TemplateArgs parsed;
  for (std::size_t i = 0; i < args.size(); ++i) {
    const std::string& arg = args[i];
    if (arg == "--container" || arg == "-o") {
      if (i + 1 >= args.size()) {
        std::cerr << "gustline-cli template: " << arg << " needs a value\n";
        return std::nullopt;
      }
      (arg == "-o" ? parsed.output : parsed.container) = args[++i];
    } else if (parsed.name.empty()) {
      parsed.name = arg;
    } else {
      std::cerr << "gustline-cli template: one template at a time, not also '" << arg << "'\n";
      return std::nullopt;
    }
  }
  if (parsed.name.empty() || parsed.output.empty()) {
    std::cerr << "gustline-cli template: give a template NAME and -o FILE\n";
    return std::nullopt;
  }
  return parsed;
}

// The container given, or the only one that holds the name.
std::optional<TemplateContainer> PickContainer(const TemplateArgs& args) {
  if (!args.container.empty()) {
    const auto container = report::ContainerFromLetter(args.container);
    if (!container)
      std::cerr << "gustline-cli template: no container '" << args.container
                << "' (A, B, D, F or G)\n";
    return container;
  }
  const auto holders = report::ContainersOf(args.name);
  if (holders.size() == 1) return holders.front();
  if (holders.empty()) {
    std::cerr << "gustline-cli template: no report template " << args.name << '\n';
  } else {
    std::cerr << "gustline-cli template: " << args.name << " stands on several containers:";
    for (const TemplateContainer holder : holders)
      std::cerr << ' ' << report::ContainerLetter(holder);
    std::cerr << "; choose one with --container\n";
  }
  return std::nullopt;
}

int RunTemplate(const std::vector<std::string>& args) {
  const auto parsed = ParseTemplateArgs(args);
  if (!parsed) return kExitUsage;
  const auto container = PickContainer(*parsed);
  if (!container) return kExitUsage;
  try {
    const auto book = report::LoadTemplate(ProgramFolder(), {parsed->name, *container});
    book->WriteWorkbook(parsed->output, wb::FileType::Native);
  } catch (const wb::FacilityError& error) {
    std::cerr << "gustline-cli template: " << error.what() << '\n';
    return kExitUsage;
  }
  return kExitOk;
}

const bool registered = RegisterCommand(
    "template", "template NAME [--container C] -o FILE   a built report template, as text",
    RunTemplate);

}  // namespace
}  // namespace gustline::cli
