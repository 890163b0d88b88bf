#include <gtest/gtest.h>

#include <fstream>
#include <string>

#include "ProgramFolder.h"
#include "core/FacilityErrorReport.h"
#include "core/FileExit.h"
#include "core/FileNames.h"
#include "core/StartUp.h"
#include "core/workbook/FacilityError.h"

namespace gustline {
namespace {

using testing::ProgramFolder;

const Message kSavePrompt{"Save", "Save changes to PROJECT1.GLN?", PromptIcon::Exclamation,
                          PromptButtons::YesNoCancel};

class FileExitTest : public ::testing::Test {
 protected:
  void SetUp() override { StartApplication(program.app, program.Path(), ""); }

  ProgramFolder program;
};

TEST_F(FileExitTest, UnchangedProjectAsksNothingAndWritesTheSettings) {
  program.view.zoomIndex = 3;
  program.view.toolbarVisible = false;
  ASSERT_TRUE(FileExit(program.app));
  EXPECT_TRUE(program.prompt.messages.empty());
  EXPECT_TRUE(program.view.movedOutOfView);
  const auto& values = program.settings.values;
  EXPECT_EQ(values.at("Zoom"), "3");
  EXPECT_EQ(values.at("Toolbar"), "False");
  EXPECT_EQ(values.at("Statusbar"), "True");
  EXPECT_EQ(values.at("Template"), program.File("NORMAL.GLT"));
  EXPECT_EQ(values.at("File0"), "(Empty)");
  EXPECT_EQ(values.at("File3"), "");
  EXPECT_FALSE(HasFile("PROJECT1.GLN"));
}

TEST_F(FileExitTest, CancelStaysInTheProgram) {
  program.state.modifiedFlag = true;
  program.prompt.answers = {PromptAnswer::Cancel};
  EXPECT_FALSE(FileExit(program.app));
  ASSERT_EQ(program.prompt.messages.size(), 1u);
  EXPECT_EQ(program.prompt.messages[0], kSavePrompt);
  EXPECT_FALSE(program.view.movedOutOfView);
  EXPECT_TRUE(program.settings.values.empty());
  EXPECT_TRUE(program.state.modifiedFlag);
}

TEST_F(FileExitTest, YesWritesTheProjectUnderItsName) {
  program.state.modifiedFlag = true;
  program.prompt.answers = {PromptAnswer::Yes};
  ASSERT_TRUE(FileExit(program.app));
  EXPECT_EQ(program.prompt.messages, std::vector<Message>{kSavePrompt});
  wb::Workbook saved("Probe");
  saved.ReadWorkbook(program.File("PROJECT1.GLN"));
  EXPECT_EQ(saved.Title(), "Gustline");
  EXPECT_FALSE(program.settings.values.empty());
}

TEST_F(FileExitTest, NoLeavesWithoutWriting) {
  program.state.modifiedFlag = true;
  program.prompt.answers = {PromptAnswer::No};
  ASSERT_TRUE(FileExit(program.app));
  EXPECT_FALSE(HasFile("PROJECT1.GLN"));
  EXPECT_FALSE(program.settings.values.empty());
}

TEST_F(FileExitTest, FailedWriteIsReportedAndTheProgramStays) {
  program.state.modifiedFlag = true;
  program.state.currentFileName = program.File("no-such-folder/Tower.gln");
  program.prompt.answers = {PromptAnswer::Yes};
  EXPECT_FALSE(FileExit(program.app));
  ASSERT_EQ(program.prompt.messages.size(), 2u);
  const Message& report = program.prompt.messages[1];
  EXPECT_EQ(report.title, "Error");
  EXPECT_EQ(report.icon, PromptIcon::Stop);
  EXPECT_EQ(report.text.rfind("Gustline error : \r\n", 0), 0u) << report.text;
  EXPECT_TRUE(program.settings.values.empty());
  EXPECT_FALSE(program.view.movedOutOfView);
}

TEST_F(FileExitTest, TemporaryBooksGoExceptThoseOfContainerG) {
  const std::vector<std::string> removed = {"Figure618A01.vts",   "Fig619A01.vts",
                                            "Fig619B01.vts",      "Figure61001.vts",
                                            "TableSpecial01.vts", "SimpMFWRS01.vts"};
  for (const auto& name : removed) std::ofstream(program.File(name)) << "x";
  std::ofstream(program.File("Figure67A01.vts")) << "x";
  ASSERT_TRUE(FileExit(program.app));
  for (const auto& name : removed) EXPECT_FALSE(HasFile(name)) << name;
  EXPECT_TRUE(HasFile("Figure67A01.vts"));
}

TEST(FacilityErrorReport, SilentNumbersAndTheCommonBox) {
  ScriptedPrompt prompt;
  ReportFacilityError(prompt, wb::FacilityError(0, "none"));
  ReportFacilityError(prompt, wb::FacilityError(23, "quiet"));
  EXPECT_TRUE(prompt.messages.empty());
  ReportFacilityError(prompt, wb::FacilityError(wb::errc::kFileWrite, "Cannot write x"));
  EXPECT_EQ(prompt.messages, (std::vector<Message>{{"Error", "Gustline error : \r\nCannot write x",
                                                    PromptIcon::Stop, PromptButtons::Ok}}));
}

}  // namespace
}  // namespace gustline
