#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <string>

#include "ProgramFolder.h"
#include "core/FacilityErrorReport.h"
#include "core/FileExit.h"
#include "core/FileNames.h"
#include "core/StartUp.h"
#include "core/TemporaryFolder.h"
#include "core/workbook/value/FacilityError.h"

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

// The answer to the save question of a changed project: Cancel stays with nothing written,
// No leaves without writing the project, Yes writes it under its name.
TEST_F(FileExitTest, SaveQuestionIsAnsweredBeforeLeaving) {
  for (const PromptAnswer answer : {PromptAnswer::Cancel, PromptAnswer::No, PromptAnswer::Yes}) {
    SCOPED_TRACE(static_cast<int>(answer));
    std::filesystem::remove(program.File("PROJECT1.GLN"));
    program.settings.values.clear();
    program.prompt.messages.clear();
    program.state.modifiedFlag = true;
    program.prompt.answers = {answer};
    const bool leaves = answer != PromptAnswer::Cancel;
    EXPECT_EQ(FileExit(program.app), leaves);
    EXPECT_EQ(program.prompt.messages, std::vector<Message>{kSavePrompt});
    EXPECT_EQ(program.view.movedOutOfView, leaves);
    EXPECT_EQ(program.settings.values.empty(), !leaves);
    EXPECT_EQ(HasFile("PROJECT1.GLN"), answer == PromptAnswer::Yes);
    EXPECT_TRUE(leaves || program.state.modifiedFlag) << "Cancel keeps the change";
    program.view.movedOutOfView = false;
  }
  wb::Workbook saved("Probe");
  saved.ReadWorkbook(program.File("PROJECT1.GLN"));
  EXPECT_EQ(saved.Title(), "Gustline");
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
  for (const auto& name : removed) std::ofstream(JoinPath(TemporaryFolder(), name)) << "x";
  std::ofstream(TemporaryBookPath("Figure67A")) << "x";
  ASSERT_TRUE(FileExit(program.app));
  for (const auto& name : removed) EXPECT_FALSE(HasFile(JoinPath(TemporaryFolder(), name))) << name;
  EXPECT_TRUE(HasFile(TemporaryBookPath("Figure67A")));
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
