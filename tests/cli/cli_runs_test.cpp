// gustline-cli as a user runs it from the shell: refused inputs, outputs that cannot be
// written, hostile project files, and many runs at once.
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <regex>
#include <string>
#include <vector>

#include "TempFolder.h"

namespace gustline::cli::testing {
namespace {

namespace fs = std::filesystem;

std::string Read(const fs::path& path) {
  std::ifstream in(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

// A report's JSON without the time of day that its date cells hold.
std::string WithoutTime(const std::string& json) {
  return std::regex_replace(json, std::regex(R"("value": \d{5}\.\d+)"), R"("value": DATE)");
}

class CliRunsTest : public ::testing::Test {
 protected:
  void SetUp() override { fs::create_directories(folder_ / "tmp"); }
  void TearDown() override { fs::remove_all(folder_); }

  // Runs the command line with its own temporary folder; standard output goes where
  // `stdoutTo` says, standard error to a file that Errors() reads. Returns the exit status.
  int Run(const std::string& args, const std::string& stdoutTo = "") {
    const std::string out = stdoutTo.empty() ? (folder_ / "stdout").string() : stdoutTo;
    const std::string command = "TMPDIR='" + (folder_ / "tmp").string() + "' '" + GUSTLINE_CLI +
                                "' " + args + " >'" + out + "' 2>'" +
                                (folder_ / "stderr").string() + "'";
    const int status = std::system(command.c_str());
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
  }
  std::string Output() const { return Read(folder_ / "stdout"); }
  std::string Errors() const { return Read(folder_ / "stderr"); }
  std::string At(const std::string& name) const { return (folder_ / name).string(); }

  fs::path folder_ = gustline::testing::UniqueTempFolder("gustline-cli-runs-");
};

TEST_F(CliRunsTest, InputsAndOutputsGiveTheirStatusAndReason) {
  struct Case {
    const char* args;
    const char* stdoutTo;
    int status;
    const char* error;  // a part of standard error; "" for none expected
  };
  const Case cases[] = {
      {"report --set Height=-60", "", 2,
       "[     Range Error    ] Valid values are numbers from 1.000 to 2000.000"},
      {"report --set WindSpeed=-90 --json -", "", 2, "Valid values are numbers from 0.000"},
      {"get --set WindSpeed=abc WindSpeed", "", 2, "[Error]   Type mismatch  "},
      {"get --set Damping=0.9 Damping", "", 2, "Valid values are numbers from 0.000 to 50.000"},
      {"get --set WindSpeed=-90 --unchecked WindSpeed", "", 0, ""},
      {"get --set Damping=0.01 --set Height=2000 WindSpeed", "", 0, ""},
      {"report --set B124=1 --set System=1 --set Zone1Area=101 --json /dev/null", "", 2,
       "Valid values are numbers from 10.000 to 100.000"},
      {"report --set B124=1 --set SimplifiedAngle=46 --json /dev/null", "", 2,
       "Valid values are numbers from 0.000 to 45.000"},
      {"report --set B124=1 --set System=1 --set Zone4Area=500 --json /dev/null", "", 0, ""},
      {"report --set System=3 --json -", "", 1,
       "no report created: no template fits System=3 Structure=0"},
      {"report --json -", "/dev/full", 2,
       "Cannot write the standard output: No space left on device"},
      {"get WindSpeed", "/dev/full", 1, "cannot write the standard output"},
      {"report --txt /dev/full", "", 2, "Cannot write the file /dev/full"},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.args);
    EXPECT_EQ(Run(c.args, c.stdoutTo), c.status);
    if (*c.error != '\0')
      EXPECT_NE(Errors().find(c.error), std::string::npos) << Errors();
    else
      EXPECT_EQ(Errors(), "");
  }
}

// Each row of a batch is the report of its own inputs: the same inputs give the same results
// whatever rows stand between, a refused row says why, and JSON lines hold the same numbers.
TEST_F(CliRunsTest, BatchRowsAreIndependentReports) {
  std::ofstream(At("cases.csv")) << "\xEF\xBB\xBFWindSpeed,Height,Exposure\n"
                                    "120,60,2\r\n"
                                    "90,\"300\",3\n"
                                    "120,-5,2\n"
                                    "120,60,2\n";
  EXPECT_EQ(Run("batch --in " + At("cases.csv") + " --out - --result qh Height Nowhere"), 1);
  const std::string csv = Output();
  std::vector<std::string> lines;
  for (std::size_t start = 0, end; (end = csv.find('\n', start)) != std::string::npos;
       start = end + 1)
    lines.push_back(csv.substr(start, end - start));
  ASSERT_EQ(lines.size(), 5U) << csv;
  EXPECT_EQ(lines[0], "WindSpeed,Height,Exposure,Template,qh,Height,Nowhere,Messages");
  EXPECT_EQ(lines[1], lines[4]);
  EXPECT_NE(lines[1], lines[2]);
  EXPECT_NE(lines[1].find(",60,"), std::string::npos);
  EXPECT_EQ(lines[3].rfind("120,-5,2,,,,,", 0), 0U) << lines[3];
  EXPECT_NE(lines[3].find("Valid values are numbers from 1.000 to 2000.000"), std::string::npos);
  EXPECT_NE(lines[1].find("no result Nowhere in the report or the project"), std::string::npos);

  ASSERT_EQ(Run("batch --jsonl --in " + At("cases.csv") + " --out - --result qh"), 1);
  // WindSpeed, Height, Exposure, Template, then qh.
  std::string qh = lines[1];
  for (int field = 0; field < 4; ++field) qh.erase(0, qh.find(',') + 1);
  qh.erase(qh.find(','));
  EXPECT_NE(Output().find("\"results\": {\"qh\": " + qh + "}"), std::string::npos) << Output();

  std::ofstream(At("none.csv")) << "System\n3\n";
  EXPECT_EQ(Run("batch --in " + At("none.csv") + " --out - --result qh"), 1);
  EXPECT_NE(Output().find("3,,,no report: no template fits System=3"), std::string::npos)
      << Output();
}

TEST_F(CliRunsTest, ADeviceTargetStaysADevice) {
  ASSERT_EQ(Run("report --json /dev/null --txt /dev/null"), 0) << Errors();
  struct stat info {};
  ASSERT_EQ(stat("/dev/null", &info), 0);
  EXPECT_TRUE(S_ISCHR(info.st_mode));
}

TEST_F(CliRunsTest, ReportsLeaveNoTemporaryFilesBehind) {
  ASSERT_EQ(Run("report --json -"), 0) << Errors();
  EXPECT_TRUE(fs::is_empty(folder_ / "tmp"));
}

TEST_F(CliRunsTest, AProjectLoadsAsWindDataWhateverBookItsFileNames) {
  fs::copy_file(fs::path(GUSTLINE_CLI).parent_path() / "workbooks/WindData.gwb", At("p.gln"));
  ASSERT_EQ(Run("set '" + At("p.gln") + "' WindSpeed=150"), 0) << Errors();
  std::string content = Read(At("p.gln"));
  content.replace(content.find("book \"WindData\""), 15, "book \"Other\"");
  std::ofstream(At("p.gln"), std::ios::binary) << content;
  ASSERT_EQ(Run("report --project '" + At("p.gln") + "' --json -"), 0) << Errors();
  EXPECT_NE(Output().find("150"), std::string::npos);
  EXPECT_EQ(Output().find("17.43"), std::string::npos) << "the velocity pressure of 90 mph";
}

TEST_F(CliRunsTest, TwelveReportsAtOnceGiveWhatOneGives) {
  ASSERT_EQ(Run("report --json '" + At("single.json") + "'"), 0) << Errors();
  std::vector<pid_t> runs;
  for (int i = 0; i < 12; ++i) {
    const std::string out = At("run" + std::to_string(i) + ".json");
    const pid_t pid = fork();
    if (pid == 0) {
      execl(GUSTLINE_CLI, GUSTLINE_CLI, "report", "--json", out.c_str(), nullptr);
      _exit(127);
    }
    runs.push_back(pid);
  }
  for (std::size_t i = 0; i < runs.size(); ++i) {
    int status = 0;
    waitpid(runs[i], &status, 0);
    EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0) << "run " << i;
    EXPECT_EQ(WithoutTime(Read(At("run" + std::to_string(i) + ".json"))),
              WithoutTime(Read(At("single.json"))))
        << "run " << i;
  }
}

}  // namespace
}  // namespace gustline::cli::testing
