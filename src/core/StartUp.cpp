#include "core/StartUp.h"

#include <array>
#include <utility>

#include "core/Application.h"
#include "core/ApplicationView.h"
#include "core/FacilityErrorReport.h"
#include "core/FileNames.h"
#include "core/ProcessState.h"
#include "core/ProjectFileTest.h"
#include "core/Prompt.h"
#include "core/ReportHook.h"
#include "core/Settings.h"
#include "core/StartupSettings.h"
#include "core/StatusSummary.h"
#include "core/TemplateFolder.h"
#include "core/TextTools.h"
#include "core/workbook/model/Workbook.h"
#include "core/workbook/value/FacilityError.h"

namespace gustline {
namespace {

constexpr const char* kNormalTemplate = "NORMAL.GLT";
constexpr const char* kBookTitle = "Gustline";

constexpr std::array<std::pair<const char*, const char*>, 18> kLateNames = {{
    {"Table66RoofType", "Sheet1!$B$87"},
    {"Note5Applies", "Sheet1!$B$200"},
    {"Dimension_a", "Sheet1!$B$187"},
    {"ClearanceRatio", "Sheet1!$B$190"},
    {"AspectRatio", "Sheet1!$B$191"},
    {"DepthRatio", "Sheet1!$B$192"},
    {"SignHorzDim", "Sheet1!$B$193"},
    {"SignHeight", "Sheet1!$B$194"},
    {"SignVertDim", "Sheet1!$B$195"},
    {"RatioOfSolidAreaToGrossArea", "Sheet1!$B$196"},
    {"HorzDimOfReturnCorner", "Sheet1!$B$197"},
    {"Fig611BZone4", "Sheet1!$B$203"},
    {"Fig611BZone5", "Sheet1!$B$204"},
    {"Fig611Note5Applies", "Sheet1!$B$205"},
    {"Use_6_5_15_1", "Sheet1!$B$208"},
    {"AfBhRatio", "Sheet1!$B$209"},
    {"Sect_6_5_15_1_MultFactor", "Sheet6!$B$35"},
    {"OKPressedOnGeometryForm", "Sheet1!$B$212"},
}};

// Reads a file into the project and checks it; a file that does not read fails the check,
// and the project is then as it was.
bool ReadAndTestProject(wb::Workbook& project, const std::string& path) {
  try {
    project.ReadWorkbook(path);
  } catch (const wb::FacilityError&) {
    return false;
  }
  return TestProjectFile(project);
}

void OpenCommandLineFile(Application& app, std::string_view commandLine) {
  const std::string trimmed(TrimBlanks(commandLine));
  const std::string fileName = CommandLineFileName(trimmed);
  if (!HasFile(fileName)) return;
  wb::Workbook& project = app.state.ProjectWorkbook();
  if (!ReadAndTestProject(project, fileName)) {
    project.ReadWorkbook(app.state.activeTemplatePath);
    app.prompt.Show(Message{"", "Unable to open file : " + fileName + std::string(kCr)});
    return;
  }
  app.view.SetCaption(MainCaption(LastPathPart(fileName)));
  app.state.recentFiles.Add(fileName);
  app.view.ShowRecentFiles(app.state.recentFiles);
  // The name keeps its quotes here, as it always did.
  app.state.currentFileName = trimmed;
  UpdateStatusSummary(project, app.view);
  app.report.CreateReport(app);
  app.report.CopyPageSetup(project, app.state.ReportWorkbook());
}

}  // namespace

std::string CarriedProjectPath(std::string_view applicationPath) {
  return JoinPath(JoinPath(applicationPath, "workbooks"), "WindData.gwb");
}

std::string CommandLineFileName(std::string_view commandLine) {
  const std::string_view trimmed = TrimBlanks(commandLine);
  if (trimmed.size() < 2) return {};
  return std::string(trimmed.substr(1, trimmed.size() - 2));
}

void ResetProjectState(ProcessState& state) {
  state.dialogApplyFlag = true;
  state.modifiedFlag = false;
  state.pageSetup = DefaultPageSetup();
}

void InitializeApplication(Application& app, const std::string& programFolder) {
  ProcessState& state = app.state;
  ApplicationView& view = app.view;
  state.applicationPath = programFolder;
  state.ProjectWorkbook().ReadWorkbook(CarriedProjectPath(programFolder));
  state.ReportWorkbook().SetTitle(kBookTitle);

  view.SetStatusPanel(1, UpperCase("Please wait..."));
  view.RepaintStatusBar();
  view.SetProgressVisible(true);
  view.SetProgress(1);
  view.SetProgress(10);
  view.SetProgress(30);
  state.currentFileName = NextUntitledName(state);
  view.SetProgress(40);
  state.ProjectWorkbook().SetTitle(kBookTitle);
  view.SetProgress(50);
  ResetProjectState(state);
  view.SetProgress(60);
  view.SetCaption(MainCaption(state.currentFileName));
  app.report.CreateReport(app);
  view.SetProgress(65);
  view.SetStatusPanel(1, kHelpPrompt);
  view.SetProgress(70);
  view.SetStatusPanelStyle();
  constexpr std::array<int, 4> kProgressAfterPanel = {75, 85, 90, 100};
  for (int panel = 2; panel <= 5; ++panel) {
    view.SetStatusPanel(panel, SummaryPanelText(state.ProjectWorkbook(), panel));
    view.SetProgress(kProgressAfterPanel[static_cast<std::size_t>(panel - 2)]);
  }
  view.SetProgressVisible(false);
  view.RepaintStatusBar();

  view.LayoutReport();
  view.SetZoomListIndex(5);
}

void LoadStartupSettings(Application& app, std::string_view commandLine) {
  ProcessState& state = app.state;
  wb::Workbook& project = state.ProjectWorkbook();
  const std::string normalPath = JoinPath(TemplateFolder(state.applicationPath), kNormalTemplate);
  state.activeTemplatePath = app.settings.GetSetting(settingkey::kTemplate, normalPath);
  if (!HasFile(normalPath)) project.WriteWorkbook(normalPath, wb::FileType::Native);
  if (!HasFile(state.activeTemplatePath)) state.activeTemplatePath = normalPath;
  // NORMAL.GLT is always the project the program carries: a user's edits to it are lost.
  DeleteIfPresent(normalPath);
  project.WriteWorkbook(normalPath, wb::FileType::Native);
  if (!ReadAndTestProject(project, state.activeTemplatePath)) {
    state.activeTemplatePath = normalPath;
    project.ReadWorkbook(normalPath);
  }
  ApplyStartupSettings(app);
  OpenCommandLineFile(app, commandLine);
}

void RecreateLateNames(wb::Workbook& project) {
  for (const auto& [name, refersTo] : kLateNames) project.SetDefinedName(name, refersTo);
}

void StartApplication(Application& app, const std::string& programFolder,
                      std::string_view commandLine) {
  app.view.ShowSplash(true);
  app.state.manualPath = JoinPath(programFolder, "Gustline.pdf");
  ResetProjectState(app.state);
  InitializeApplication(app, programFolder);
  app.view.ShowSplash(false);
  app.view.ShowMainWindow();
  try {
    LoadStartupSettings(app, commandLine);
  } catch (const wb::FacilityError& error) {
    ReportFacilityError(app.prompt, error);
  }
  app.view.HideToolsMenu();
  app.view.ShowReport();
  try {
    RecreateLateNames(app.state.ProjectWorkbook());
  } catch (const wb::FacilityError& error) {
    ReportFacilityError(app.prompt, error);
  }
}

}  // namespace gustline
