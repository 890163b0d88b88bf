// gustline-cli gust: the calculator's G and steps for a script, and its fields' rules.
#include <gtest/gtest.h>
#include <sys/wait.h>

#include <array>
#include <cstdio>
#include <string>

namespace gustline::cli::testing {
namespace {

struct CliRun {
  int status = -1;
  std::string output;  // standard output and error together
};

CliRun RunCli(const std::string& args) {
  CliRun run;
  const std::string command = std::string("'") + GUSTLINE_CLI + "' " + args + " 2>&1";
  FILE* pipe = popen(command.c_str(), "r");
  if (pipe == nullptr) return run;
  std::array<char, 256> buffer{};
  while (std::fgets(buffer.data(), buffer.size(), pipe) != nullptr) run.output += buffer.data();
  const int status = pclose(pipe);
  run.status = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
  return run;
}

TEST(CliGustTest, PrintsGAndItsStepsAtFullPrecision) {
  struct Case {
    const char* args;
    int status;
    const char* line;  // a line the output holds
  };
  const Case cases[] = {
      // The inputs stored in the calculator's book, damping in per cent.
      {"gust --exposure A --height 600 --width 100 --depth 100 --speed 90 --frequency 0.2 "
       "--damping 1",
       0, "\nG = 1.0563523641146069\n"},
      {"gust --exposure a --height 600 --width 100 --depth 100 --speed 90 --frequency 0.2 "
       "--damping 1",
       0, "\nR2 = 0.5840443591262727\n"},
      {"gust --exposure C --height 60 --width 100 --depth 100 --speed 90 --frequency 0.2 "
       "--damping 1",
       0, "\nG = 1.5353348331163512\n"},
      {"gust --exposure C --frequency 0", 0, "\nR2 = 0\n"},
      {"gust --damping 0.00001", 2, "Valid values are numbers from 0.000 to 50.000"},
      {"gust --height 2001", 2, "Valid values are numbers from 1.000 to 2000.000"},
      {"gust --exposure E", 2, "the exposure is A, B, C or D"},
      {"gust --height", 2, "--height needs a value"},
  };
  for (const Case& c : cases) {
    const CliRun run = RunCli(c.args);
    EXPECT_EQ(run.status, c.status) << c.args << '\n' << run.output;
    EXPECT_NE(("\n" + run.output).find(c.line), std::string::npos) << c.args << '\n' << run.output;
  }
}

}  // namespace
}  // namespace gustline::cli::testing
