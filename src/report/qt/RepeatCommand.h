#pragma once

#include <functional>
#include <span>
#include <string>
#include <string_view>

namespace gustline {

// The commands that Repeat Command compares with the last one, in the order of comparison:
// File, Edit and View, Parameters, Format and Help. Entries are menu object names.
std::span<const std::string_view> RepeatOrder();

// Remembers the caption of the last command run, across projects, and finds the command
// that Repeat Command runs again.
class RepeatCommand {
 public:
  // A command stores its caption before it runs; a repeat run stores it again.
  void Store(std::string_view caption) { lastCommand_ = caption; }
  const std::string& LastCommand() const { return lastCommand_; }

  // The first command of RepeatOrder whose caption equals the last command exactly; empty
  // when nothing was run yet or no caption matches.
  std::string_view Find(const std::function<std::string(std::string_view)>& captionOf) const;

 private:
  std::string lastCommand_;
};

}  // namespace gustline
