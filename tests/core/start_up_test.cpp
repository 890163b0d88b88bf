#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "ProgramFolder.h"
#include "core/FileExit.h"
#include "core/StartUp.h"
#include "core/workbook/model/NamedCells.h"
#include "core/workbook/value/FacilityError.h"

namespace gustline {
namespace {

using testing::ProgramFolder;
using testing::WriteProject;

double ProjectWindSpeed(ProcessState& state) {
  return wb::ReadNamedNumber(state.ProjectWorkbook(), "WindSpeed");
}

double FileWindSpeed(const std::string& path) {
  wb::Workbook book("Probe");
  book.ReadWorkbook(path);
  return wb::ReadNamedNumber(book, "WindSpeed");
}

struct CommandLineCase {
  std::string commandLine;
  std::string fileName;
};

class CommandLineTest : public ::testing::TestWithParam<CommandLineCase> {};

TEST_P(CommandLineTest, DropsTheFirstAndLastCharacter) {
  EXPECT_EQ(CommandLineFileName(GetParam().commandLine), GetParam().fileName);
}

INSTANTIATE_TEST_SUITE_P(
    Texts, CommandLineTest,
    ::testing::Values(CommandLineCase{"\"/data/Tower.gln\"", "/data/Tower.gln"},
                      CommandLineCase{"   \"a b.gln\"  ", "a b.gln"},
                      CommandLineCase{"/data/Tower.gln", "data/Tower.gl"}, CommandLineCase{"", ""},
                      CommandLineCase{"   ", ""}, CommandLineCase{"x", ""}));

TEST(StartUp, FirstRunWithoutSettings) {
  ProgramFolder program;
  StartApplication(program.app, program.Path(), "");

  EXPECT_TRUE(program.prompt.messages.empty());
  EXPECT_EQ(program.state.activeTemplatePath, program.File("NORMAL.GLT"));
  EXPECT_EQ(program.state.manualPath, program.File("Gustline.pdf"));
  EXPECT_EQ(program.view.zoomIndex, 5);
  EXPECT_EQ(program.view.zoomListIndex, 5);
  EXPECT_TRUE(program.view.toolbarVisible);
  EXPECT_TRUE(program.view.statusbarVisible);
  EXPECT_EQ(program.view.recentFiles.Entry(0), (RecentEntry{"(Empty)", true, false}));
  EXPECT_FALSE(program.view.recentFiles.Entry(1).visible);

  EXPECT_EQ(program.state.currentFileName, "PROJECT1.GLN");
  EXPECT_EQ(program.state.untitledCounter, 2);
  EXPECT_EQ(program.view.caption, " Kestrel Ridge Gustline - [PROJECT1.GLN]");
  EXPECT_EQ(program.view.panels[1], " Press F1 for Help");
  EXPECT_EQ(program.view.panels[2], " V = 90.00 mph ");
  EXPECT_EQ(program.view.progress,
            (std::vector<int>{1, 10, 30, 40, 50, 60, 65, 70, 75, 85, 90, 100}));
  EXPECT_FALSE(program.view.progressVisible);
  EXPECT_FALSE(program.view.splashShown);
  EXPECT_TRUE(program.view.mainWindowShown);
  EXPECT_TRUE(program.view.toolsMenuHidden);
  EXPECT_TRUE(program.view.reportShown);

  EXPECT_TRUE(program.state.dialogApplyFlag);
  EXPECT_FALSE(program.state.modifiedFlag);
  EXPECT_EQ(program.state.pageSetup.footer, "&A");
  EXPECT_EQ(program.state.ProjectWorkbook().Title(), "Gustline");
  EXPECT_EQ(program.state.ReportWorkbook().Title(), "Gustline");
  EXPECT_EQ(program.report.reports, 1);
  EXPECT_EQ(FileWindSpeed(program.File("NORMAL.GLT")), 90);
}

// A template that is gone or does not read gives way to NORMAL, which every start writes
// afresh, and NORMAL is what the exit remembers.
TEST(StartUp, MissingBrokenOrEditedTemplateFallsBackToAFreshNormal) {
  for (const char* name : {"Gone.GLT", "Broken.GLT", "NORMAL.GLT"}) {
    SCOPED_TRACE(name);
    ProgramFolder program;
    if (name == std::string("Broken.GLT")) std::ofstream(program.File(name)) << "not a workbook";
    if (name == std::string("NORMAL.GLT")) WriteProject(program.File(name), 150);
    program.settings.SaveSetting("Template", program.File(name));
    StartApplication(program.app, program.Path(), "");
    EXPECT_TRUE(program.prompt.messages.empty());
    EXPECT_EQ(program.state.activeTemplatePath, program.File("NORMAL.GLT"));
    EXPECT_EQ(ProjectWindSpeed(program.state), 90);
    EXPECT_EQ(FileWindSpeed(program.File("NORMAL.GLT")), 90);
    ASSERT_TRUE(FileExit(program.app));
    EXPECT_EQ(program.settings.values.at("Template"), program.File("NORMAL.GLT"));
  }
}

TEST(StartUp, ActiveTemplateUnderAnotherNameIsReadAndKept) {
  ProgramFolder program;
  WriteProject(program.File("Coastal.GLT"), 130);
  program.settings.SaveSetting("Template", program.File("Coastal.GLT"));
  StartApplication(program.app, program.Path(), "");
  EXPECT_EQ(program.state.activeTemplatePath, program.File("Coastal.GLT"));
  EXPECT_EQ(ProjectWindSpeed(program.state), 130);
  EXPECT_EQ(FileWindSpeed(program.File("Coastal.GLT")), 130);
  EXPECT_EQ(FileWindSpeed(program.File("NORMAL.GLT")), 90);
}

TEST(StartUp, QuotedCommandLineOpensTheProject) {
  ProgramFolder program;
  const std::string path = program.File("Tower.gln");
  WriteProject(path, 110);
  StartApplication(program.app, program.Path(), " \"" + path + "\" ");

  EXPECT_TRUE(program.prompt.messages.empty());
  EXPECT_EQ(ProjectWindSpeed(program.state), 110);
  EXPECT_EQ(program.view.caption, " Kestrel Ridge Gustline - [TOWER.GLN]");
  EXPECT_EQ(program.state.currentFileName, "\"" + path + "\"");
  EXPECT_EQ(program.view.recentFiles.Entry(0).caption, path);
  EXPECT_EQ(program.view.panels[2], " V = 110.00 mph ");
  EXPECT_EQ(program.report.reports, 2);
  EXPECT_EQ(program.report.pageSetupCopies, 1);
  // A project of an earlier version gets the late names too.
  EXPECT_TRUE(program.state.ProjectWorkbook().DefinedName("AfBhRatio").has_value());
}

TEST(StartUp, UnquotedCommandLineNamesNoFileAndShowsTheTemplate) {
  ProgramFolder program;
  const std::string path = program.File("Tower.gln");
  WriteProject(path, 110);
  StartApplication(program.app, program.Path(), path);
  EXPECT_TRUE(program.prompt.messages.empty());
  EXPECT_EQ(ProjectWindSpeed(program.state), 90);
  EXPECT_EQ(program.state.currentFileName, "PROJECT1.GLN");
  EXPECT_EQ(program.report.reports, 1);
}

TEST(StartUp, CommandLineFileThatDoesNotReadFallsBackToTheTemplate) {
  ProgramFolder program;
  const std::string path = program.File("Bad.gln");
  std::ofstream(path) << "garbage";
  StartApplication(program.app, program.Path(), "\"" + path + "\"");
  ASSERT_EQ(program.prompt.messages.size(), 1u);
  EXPECT_EQ(program.prompt.messages[0].text, "Unable to open file : " + path + "\r");
  EXPECT_EQ(ProjectWindSpeed(program.state), 90);
  EXPECT_EQ(program.state.currentFileName, "PROJECT1.GLN");
  EXPECT_EQ(program.view.recentFiles.Entry(0).caption, "(Empty)");
}

TEST(StartUp, UnreadableZoomIsReportedAndTheStartGoesOn) {
  ProgramFolder program;
  program.settings.SaveSetting("Zoom", "wide");
  StartApplication(program.app, program.Path(), "");
  ASSERT_EQ(program.prompt.messages.size(), 1u);
  EXPECT_EQ(program.prompt.messages[0].title, "Error");
  EXPECT_EQ(program.prompt.messages[0].icon, PromptIcon::Stop);
  EXPECT_TRUE(program.view.toolsMenuHidden);
  EXPECT_TRUE(program.state.ProjectWorkbook().DefinedName("Note5Applies").has_value());
}

TEST(StartUp, MissingCarriedProjectRaises) {
  ProgramFolder program;
  std::filesystem::remove(program.File("workbooks/WindData.gwb"));
  EXPECT_THROW(StartApplication(program.app, program.Path(), ""), wb::FacilityError);
}

}  // namespace
}  // namespace gustline
