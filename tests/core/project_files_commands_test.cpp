#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <functional>
#include <sstream>
#include <string>
#include <vector>

#include "ProgramFolder.h"
#include "core/FileNames.h"
#include "core/FileNew.h"
#include "core/FileOpen.h"
#include "core/FileSave.h"
#include "core/FileSaveAs.h"
#include "core/FileTemplate.h"
#include "core/StartUp.h"
#include "core/workbook/model/NamedCells.h"

namespace gustline {
namespace {

using testing::ProgramFolder;

// A report of two pages whose cells read the project through links, as templates do.
class LinkedReport : public testing::CountingReportHook {
 public:
  void CreateReport(Application& app) override {
    CountingReportHook::CreateReport(app);
    wb::Workbook& report = app.state.ReportWorkbook();
    report.ClearAll();
    report.SetCellText(1, 1, "V");
    report.SetCellFormula(1, 2, "[WindData]Sheet1!WindSpeed");
    report.SetCellFormula(2, 2, "[WindData]Sheet1!Height*2");
    report.AddSheet("Page 2");
    report.SetActiveSheet(2);
    report.SetCellFormula(1, 1, "\"Exposure \"&[WindData]Sheet1!Exposure");
    report.SetActiveSheet(1);
  }
};

std::vector<std::string> ReportCells(wb::Workbook& report) {
  std::vector<std::string> cells;
  for (int sheet = 1; sheet <= report.SheetCount(); ++sheet) {
    report.SetActiveSheet(sheet);
    for (int row = 1; row <= report.LastRow(); ++row)
      for (int col = 1; col <= report.LastCol(); ++col) cells.push_back(report.CellText(row, col));
  }
  report.SetActiveSheet(1);
  return cells;
}

std::string Contents(const std::string& path) {
  std::ifstream in(path, std::ios::binary);
  std::ostringstream text;
  text << in.rdbuf();
  return text.str();
}

FileChoice Chosen(const std::string& path) {
  return FileChoice{path, 1};
}

class ProjectFilesTest : public ::testing::Test {
 protected:
  void SetUp() override {
    wb::Workbook carried("WindData");
    testing::FillProject(carried, 90);
    const char* names[] = {"System", "Structure", "Figure", "Table", "GustType"};
    for (int i = 0; i < 5; ++i)
      carried.SetDefinedName(names[i], "Sheet1!$B$" + std::to_string(i + 1));
    carried.SetDefinedName("Table66RoofType", "Sheet1!$B$87");
    carried.WriteWorkbook(program.File("workbooks/WindData.gwb"), wb::FileType::Native);
    StartApplication(app, program.Path(), "");
    program.prompt.messages.clear();
  }

  double Project(const char* name) {
    return wb::ReadNamedNumber(program.state.ProjectWorkbook(), name);
  }

  ProgramFolder program;
  LinkedReport report;
  Application app{program.state, program.view, program.prompt, program.settings, report};
};

const Message kReplace{"Save Project",
                       "PROJECT1.GLN\rThis file already exist.\r\rReplace this file?",
                       PromptIcon::Exclamation, PromptButtons::YesNo};
const Message kSaveChanges{"Save", "Save changes to PROJECT1.GLN?", PromptIcon::Exclamation,
                           PromptButtons::YesNoCancel};
const Message kSaveBeforeOpen{"Save", "Save  PROJECT1.GLN?", PromptIcon::Exclamation,
                              PromptButtons::YesNoCancel};

struct QuestionCase {
  std::string name;
  std::function<bool(Application&)> command;
  bool modified;
  bool fileExists;
  std::vector<PromptAnswer> answers;
  std::vector<Message> messages;
  std::vector<std::string> dialogs;  // titles of the file dialogs shown
  bool projectWritten;
};

class SaveQuestionTest : public ProjectFilesTest,
                         public ::testing::WithParamInterface<QuestionCase> {};

TEST_P(SaveQuestionTest, AsksAndGoesOnAsAnswered) {
  const QuestionCase& c = GetParam();
  program.state.modifiedFlag = c.modified;
  if (c.fileExists) std::ofstream("PROJECT1.GLN") << "old";
  program.prompt.answers = c.answers;
  c.command(app);
  EXPECT_EQ(program.prompt.messages, c.messages);
  std::vector<std::string> dialogs;
  for (const FileRequest& request : program.prompt.fileRequests) dialogs.push_back(request.title);
  EXPECT_EQ(dialogs, c.dialogs);
  EXPECT_EQ(HasFile("PROJECT1.GLN") && Contents("PROJECT1.GLN") != "old", c.projectWritten);
  EXPECT_EQ(HasFile(kPropertiesDumpName), c.projectWritten);
}

const auto kNewNormal = [](Application& a) {
  return FileNew(a, [] { return std::string("Normal"); });
};

using enum PromptAnswer;

INSTANTIATE_TEST_SUITE_P(
    Commands, SaveQuestionTest,
    ::testing::ValuesIn(std::vector<QuestionCase>{
        {"SaveUntitledWritesWithoutDialog", FileSave, false, false, {}, {}, {}, true},
        {"SaveChangedGoesThroughSaveAs", FileSave, true, false, {}, {}, {"Save As"}, false},
        {"SaveOverExistingRefused", FileSave, false, true, {No}, {kReplace}, {}, false},
        {"SaveOverExistingAccepted", FileSave, false, true, {Yes}, {kReplace}, {}, true},
        {"OpenCancelled", FileOpen, true, false, {Cancel}, {kSaveBeforeOpen}, {}, false},
        {"OpenSavesFirst",
         FileOpen,
         true,
         false,
         {Yes},
         {kSaveBeforeOpen},
         {"Save As", "Open Project"},
         false},
        {"NewCancelled", kNewNormal, true, false, {Cancel}, {kSaveChanges}, {}, false},
        {"NewWithoutSaving", kNewNormal, true, false, {No}, {kSaveChanges}, {}, false}}),
    [](const auto& info) { return info.param.name; });

TEST_F(ProjectFilesTest, PropertiesDumpHoldsTheProjectSheetAsText) {
  ASSERT_TRUE(FileSave(app));
  std::istringstream dump(Contents(kPropertiesDumpName));
  std::vector<std::string> lines;
  for (std::string line; std::getline(dump, line);) lines.push_back(line);
  ASSERT_EQ(lines.size(), 24u);
  EXPECT_EQ(lines[16], "\t90\r");
  EXPECT_EQ(lines[23], "\t60\r");
}

struct SaveAsCase {
  std::string chosen;
  std::string fileName;   // the project's name afterwards
  std::string fileStart;  // the first bytes written, empty when nothing is
};

class SaveAsTest : public ProjectFilesTest, public ::testing::WithParamInterface<SaveAsCase> {};

TEST_P(SaveAsTest, TheExtensionDecidesWhatIsWritten) {
  const SaveAsCase& c = GetParam();
  program.state.modifiedFlag = true;
  program.prompt.fileChoices = {Chosen(c.chosen)};
  ASSERT_TRUE(FileSaveAs(app));
  EXPECT_FALSE(program.state.modifiedFlag);
  EXPECT_EQ(program.state.currentFileName, c.fileName);
  EXPECT_EQ(Contents(c.chosen).substr(0, c.fileStart.size()), c.fileStart);
  EXPECT_EQ(HasFile(c.chosen), !c.fileStart.empty());
}

INSTANTIATE_TEST_SUITE_P(Names, SaveAsTest,
                         ::testing::Values(SaveAsCase{"Job.gln", "Job.gln", "gustline-workbook"},
                                           SaveAsCase{"Wall.GLT", "WALL.GLN", "gustline-workbook"},
                                           SaveAsCase{"Report.TXT", "PROJECT1.GLN",
                                                      "V\t90\r\n\t120\r\n\t\r\nExposure 2\t\r\n"},
                                           SaveAsCase{"Report.xls", "PROJECT1.GLN",
                                                      "\xD0\xCF\x11\xE0"},
                                           SaveAsCase{"Job.glnx", "PROJECT1.GLN", ""}));

TEST_F(ProjectFilesTest, CancelledSaveAsKeepsTheFlag) {
  program.state.modifiedFlag = true;
  EXPECT_FALSE(FileSaveAs(app));
  EXPECT_TRUE(program.state.modifiedFlag);
}

TEST_F(ProjectFilesTest, SavedProjectOpensToTheSameReport) {
  wb::Workbook& project = program.state.ProjectWorkbook();
  wb::WriteNamedNumber(project, "WindSpeed", 115);
  report.CreateReport(app);
  const std::vector<std::string> saved = ReportCells(program.state.ReportWorkbook());
  const std::string path = program.File("Job.gln");
  program.prompt.fileChoices = {Chosen(path)};
  ASSERT_TRUE(FileSaveAs(app));

  wb::WriteNamedNumber(project, "WindSpeed", 90);
  report.CreateReport(app);
  ASSERT_NE(ReportCells(program.state.ReportWorkbook()), saved);
  program.prompt.fileChoices = {Chosen(path)};
  ASSERT_TRUE(FileOpen(app));
  EXPECT_EQ(ReportCells(program.state.ReportWorkbook()), saved);
  EXPECT_EQ(program.state.currentFileName, path);
  EXPECT_EQ(program.state.recentFiles.Entry(0).caption, path);
  EXPECT_EQ(program.view.caption, " Kestrel Ridge Gustline - [JOB.GLN]");

  ASSERT_TRUE(OpenRecentFile(app, 0));
  EXPECT_EQ(ReportCells(program.state.ReportWorkbook()), saved);
}

TEST_F(ProjectFilesTest, TemplateOpensAsAnUnsavedProjectOffTheRecentList) {
  program.prompt.fileChoices = {Chosen(program.File("NORMAL.GLT"))};
  ASSERT_TRUE(FileOpen(app));
  EXPECT_EQ(program.state.currentFileName, "NORMAL.GLN");
  EXPECT_EQ(program.state.recentFiles.Entry(0).caption, "(Empty)");
}

TEST_F(ProjectFilesTest, FailedOpenLeavesTheProjectAsItWas) {
  wb::WriteNamedNumber(program.state.ProjectWorkbook(), "WindSpeed", 133);
  const std::string path = program.File("Broken.gln");
  std::ofstream(path) << "not a workbook";
  program.prompt.fileChoices = {Chosen(path)};
  EXPECT_FALSE(FileOpen(app));
  const Message failed{"Error", "Unable to Open File : " + path, PromptIcon::Stop,
                       PromptButtons::Ok};
  EXPECT_EQ(program.prompt.messages, std::vector<Message>{failed});
  EXPECT_EQ(Project("WindSpeed"), 133);
  EXPECT_EQ(program.state.currentFileName, "PROJECT1.GLN");
}

TEST_F(ProjectFilesTest, UnknownExtensionReadsNothingAndRebuildsTheReport) {
  const int reports = report.reports;
  program.prompt.fileChoices = {Chosen(program.File("Job.glnx"))};
  EXPECT_TRUE(FileOpen(app));
  EXPECT_EQ(report.reports, reports + 1);
  EXPECT_EQ(program.state.currentFileName, "PROJECT1.GLN");
}

struct PresetCase {
  std::string key;
  std::vector<double> cells;  // System, Structure, Figure, Table, GustType, Table66RoofType, Height
};

class FileNewPresetTest : public ProjectFilesTest,
                          public ::testing::WithParamInterface<PresetCase> {};

TEST_P(FileNewPresetTest, WritesThePresetIntoTheTemplate) {
  program.state.modifiedFlag = true;
  program.prompt.answers = {PromptAnswer::No};
  ASSERT_TRUE(FileNew(app, [&] { return GetParam().key; }));
  std::vector<double> cells;
  for (const char* name :
       {"System", "Structure", "Figure", "Table", "GustType", "Table66RoofType", "Height"})
    cells.push_back(Project(name));
  EXPECT_EQ(cells, GetParam().cells);
  EXPECT_EQ(program.state.currentFileName, "PROJECT2.GLN");
  EXPECT_FALSE(program.state.modifiedFlag);
}

INSTANTIATE_TEST_SUITE_P(
    Keys, FileNewPresetTest,
    ::testing::Values(PresetCase{" Normal", {0, 0, 0, 0, 0, 0, 60}},
                      PresetCase{"  MWFRS Figure 6-7 Flexible", {0, 2, 9, 0, 2, 0, 60}},
                      PresetCase{"  CLADDING Figure 6-17", {1, 1, 0, 0, 0, 0, 70}},
                      PresetCase{"  OBOS Figure 6-19B Flexible", {2, 1, 1, 2, 2, 2, 60}},
                      PresetCase{"  OBOS Special Case", {2, 0, 1, 7, 0, 0, 60}}));

TEST_F(ProjectFilesTest, TemplateNameIsCheckedBeforeItIsTaken) {
  const std::string normal = program.state.activeTemplatePath;
  EXPECT_EQ(ActiveTemplateFieldText(app), "NORMAL");
  EXPECT_FALSE(AcceptTemplateName(app, "Missing"));
  const Message missing{"Gustline", "This template does not exist.", PromptIcon::Information,
                        PromptButtons::Ok};
  EXPECT_EQ(program.prompt.messages, std::vector<Message>{missing});
  EXPECT_EQ(program.state.activeTemplatePath, normal);
  EXPECT_TRUE(AcceptTemplateName(app, ""));
  EXPECT_EQ(program.state.activeTemplatePath, normal);
}

}  // namespace
}  // namespace gustline
