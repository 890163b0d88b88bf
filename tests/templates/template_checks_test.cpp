// Every check file of checks/, run on the built templates and the default project as the
// program builds the report (docs/template-checks.md). A new file is picked up by itself.
#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <string>
#include <vector>

#include "report/TemplateCheck.h"

namespace gustline::report {
namespace {

std::vector<std::string> CheckFiles() {
  std::vector<std::string> paths;
  for (const auto& entry : std::filesystem::directory_iterator(GUSTLINE_TEMPLATE_CHECK_DIR))
    if (entry.path().extension() == ".check") paths.push_back(entry.path().string());
  std::sort(paths.begin(), paths.end());
  return paths;
}

// The file's name as a test name: letters, digits and underscores.
std::string TestName(const ::testing::TestParamInfo<std::string>& info) {
  std::string name = std::filesystem::path(info.param).stem().string();
  for (char& c : name)
    if (!std::isalnum(static_cast<unsigned char>(c))) c = '_';
  return name;
}

class TemplateChecksTest : public ::testing::TestWithParam<std::string> {};

TEST_P(TemplateChecksTest, ReportShowsTheCheckedValues) {
  try {
    const CheckRun run = RunCheckFile(ReadCheckFile(GetParam()), GUSTLINE_BIN_DIR);
    EXPECT_GT(run.checks, 0) << GetParam() << " checks nothing";
    for (const CheckFailure& failure : run.failures) ADD_FAILURE() << failure.Text();
  } catch (const CheckFileError& error) {
    FAIL() << error.what();
  }
}

INSTANTIATE_TEST_SUITE_P(Checks, TemplateChecksTest, ::testing::ValuesIn(CheckFiles()), TestName);

}  // namespace
}  // namespace gustline::report
