#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace gustline::cli {

// A command of gustline-cli: its arguments after the command word; returns the exit status.
using CommandFn = int (*)(const std::vector<std::string>& args);

// Each command registers itself from its own file:
//   const bool registered = RegisterCommand("eval", "usage text", RunEval);
bool RegisterCommand(std::string_view name, std::string_view usage, CommandFn run);

// Exit statuses shared by the commands.
inline constexpr int kExitOk = 0;
inline constexpr int kExitFailed = 1;  // the command ran but produced no result
inline constexpr int kExitUsage = 2;   // bad arguments, or a facility error

}  // namespace gustline::cli
