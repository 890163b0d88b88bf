// gustline-cli: the program's core without a window. Every message box is printed to
// standard error as "[Title] text".
#include <algorithm>
#include <cstdio>
#include <iostream>
#include <map>
#include <string>
#include <vector>

#include "CliCommand.h"

namespace gustline::cli {
namespace {

struct Command {
  std::string usage;
  CommandFn run;
};

std::map<std::string, Command, std::less<>>& Commands() {
  static std::map<std::string, Command, std::less<>> commands;
  return commands;
}

}  // namespace

bool RegisterCommand(std::string_view name, std::string_view usage, CommandFn run) {
  Commands().emplace(std::string(name), Command{std::string(usage), run});
  return true;
}

}  // namespace gustline::cli

int main(int argc, char** argv) {
  using namespace gustline::cli;
  const std::vector<std::string> args(argv + 1, argv + argc);
  if (args.empty() || args[0] == "--help" || args[0] == "-h") {
    std::cerr << "usage: gustline-cli COMMAND [ARGS]\n\ncommands:\n";
    for (const auto& [name, command] : Commands()) std::cerr << "  " << command.usage << '\n';
    return args.empty() ? kExitUsage : kExitOk;
  }
  const auto found = Commands().find(args[0]);
  if (found == Commands().end()) {
    std::cerr << "gustline-cli: unknown command '" << args[0] << "'\n";
    return kExitUsage;
  }
  const int status = found->second.run(std::vector<std::string>(args.begin() + 1, args.end()));
  // What went to standard output counts only if it arrived: a full disk or a closed pipe
  // is a failure, not a success with half a result.
  std::cout.flush();
  if (!std::cout || std::fflush(stdout) != 0 || std::ferror(stdout) != 0) {
    std::cerr << "gustline-cli: cannot write the standard output\n";
    return std::max(status, kExitFailed);
  }
  return status;
}
