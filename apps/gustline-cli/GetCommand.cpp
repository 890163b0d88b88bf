// gustline-cli get: the values of named cells of a project after its --set inputs.
#include <iostream>
#include <string>
#include <vector>

#include "CliCommand.h"
#include "ProjectOptions.h"
#include "core/workbook/model/Workbook.h"
#include "core/workbook/value/FacilityError.h"
#include "core/workbook/value/Value.h"

namespace gustline::cli {
namespace {

// The value of the first cell of a defined name or a cell text such as "B124".
wb::Value NamedValue(wb::Workbook& book, const std::string& name) {
  book.SetSelection(name);
  return book.CellValue(book.SelFirstRow(), book.SelFirstCol());
}

int RunGet(const std::vector<std::string>& args) {
  const auto options = ParseProjectOptions(args);
  if (!options) return kExitUsage;
  if (options->rest.empty()) {
    std::cerr << "gustline-cli get: no name given\n";
    return kExitUsage;
  }
  try {
    const auto project = OpenProject(*options);
    if (!project) return kExitUsage;
    std::string lines;
    for (const std::string& name : options->rest)
      lines += name + '\t' + wb::PlainText(NamedValue(*project, name)) + '\n';
    std::cout << lines;
  } catch (const wb::FacilityError& error) {
    std::cerr << "gustline-cli get: " << error.what() << '\n';
    return kExitUsage;
  }
  return kExitOk;
}

const bool registered = RegisterCommand(
    "get",
    "get [--project FILE] [--set NAME=VALUE]... [--unchecked] NAME...   print NAME<TAB>VALUE",
    RunGet);

}  // namespace
}  // namespace gustline::cli
