// gustline-cli check: runs template check files (docs/template-checks.md) on the program's
// own templates and default project.
#include <algorithm>
#include <iostream>
#include <string>
#include <vector>

#include "CliCommand.h"
#include "ProjectOptions.h"
#include "report/TemplateCheck.h"

namespace gustline::cli {
namespace {

constexpr const char* kUsage =
    "check FILE...   run template check files; each failure as FILE:LINE: reason";

int RunCheck(const std::vector<std::string>& args) {
  if (args.empty()) {
    std::cerr << "usage: gustline-cli " << kUsage << '\n';
    return kExitUsage;
  }
  int status = kExitOk;
  int checks = 0;
  std::size_t failures = 0;
  for (const std::string& path : args) {
    try {
      const report::CheckRun run =
          report::RunCheckFile(report::ReadCheckFile(path), ProgramFolder());
      for (const report::CheckFailure& failure : run.failures) std::cout << failure.Text() << '\n';
      checks += run.checks;
      failures += run.failures.size();
      if (!run.failures.empty()) status = std::max(status, kExitFailed);
    } catch (const report::CheckFileError& error) {
      std::cerr << error.what() << '\n';
      status = kExitUsage;
    }
  }
  std::cout << checks << " checks, " << failures << " failed\n";
  return status;
}

const bool registered = RegisterCommand("check", kUsage, RunCheck);

}  // namespace
}  // namespace gustline::cli
