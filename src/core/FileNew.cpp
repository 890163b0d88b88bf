#include "core/FileNew.h"

#include <algorithm>
#include <array>

#include "core/Application.h"
#include "core/ApplicationView.h"
#include "core/FacilityErrorReport.h"
#include "core/FileSaveAs.h"
#include "core/ProcessState.h"
#include "core/Prompt.h"
#include "core/ReportHook.h"
#include "core/StartUp.h"
#include "core/StatusSummary.h"
#include "core/TextTools.h"
#include "core/workbook/model/NamedCells.h"
#include "core/workbook/model/Workbook.h"
#include "core/workbook/value/FacilityError.h"

namespace gustline {
namespace {

// The cells a preset writes; a negative entry is left as the template has it.
struct NewProjectPreset {
  std::string key;
  int system = -1;
  int structure = -1;
  int figure = -1;
  int table = -1;
  int gustType = -1;
  int roofType = -1;
  int height = 60;
};

std::vector<NewProjectPreset> BuildPresets() {
  std::vector<NewProjectPreset> presets;
  presets.push_back({"MWFRS Figure 6-10", 0, 0});
  constexpr std::array<std::pair<const char*, int>, 3> kMwfrs = {
      {{"6-6", 1}, {"6-7", 9}, {"6-8", 8}}};
  for (const auto& [figure, value] : kMwfrs)
    presets.push_back({std::string("MWFRS Figure ") + figure, 0, 1, value});
  for (const auto& [figure, value] : kMwfrs)
    presets.push_back({std::string("MWFRS Figure ") + figure + " Flexible", 0, 2, value, -1, 2});
  presets.push_back({"CLADDING Figure 6-11", 1, 0, 3});
  presets.push_back({"CLADDING Figure 6-12", 1, 0, 3});
  presets.push_back({"CLADDING Figure 6-13", 1, 0, 4});
  presets.push_back({"CLADDING Figure 6-14A", 1, 0, 5});
  presets.push_back({"CLADDING Figure 6-15", 1, 0, 6});
  presets.push_back({"CLADDING Figure 6-16", 1, 2, 9});
  presets.push_back({"CLADDING Figure 6-17", 1, 1, -1, -1, -1, -1, 70});
  presets.push_back({"CLADDING Figure 6-8", 1, 2, 8});

  // Other structures: the rigid twelve, then the same twelve flexible.
  struct OtherStructure {
    const char* name;
    int table;
    int roofType;
  };
  constexpr std::array<OtherStructure, 12> kOther = {{{"Figure 6-18A", 1, 1},
                                                      {"Figure 6-18B", 1, 2},
                                                      {"Figure 6-18C", 1, 3},
                                                      {"Figure 6-18D", 1, 4},
                                                      {"Figure 6-19A", 2, 1},
                                                      {"Figure 6-19B", 2, 2},
                                                      {"Figure 6-19C", 2, 3},
                                                      {"Figure 6-20", 3, -1},
                                                      {"Figure 6-21", 4, -1},
                                                      {"Figure 6-22", 5, -1},
                                                      {"Figure 6-23", 6, -1},
                                                      {"Special Case", 7, -1}}};
  for (const OtherStructure& other : kOther)
    presets.push_back({std::string("OBOS ") + other.name, 2, 0, 1, other.table, 0, other.roofType});
  for (const OtherStructure& other : kOther)
    presets.push_back(
        {std::string("OBOS ") + other.name + " Flexible", 2, 1, 1, other.table, 2, other.roofType});
  return presets;
}

const std::vector<NewProjectPreset>& Presets() {
  static const std::vector<NewProjectPreset> presets = BuildPresets();
  return presets;
}

void WriteIfSet(wb::Workbook& project, std::string_view name, int value) {
  if (value >= 0) wb::WriteNamedInt(project, name, value);
}

}  // namespace

const std::vector<std::string>& NewProjectPresetKeys() {
  static const std::vector<std::string> keys = [] {
    std::vector<std::string> all{"Normal"};
    for (const NewProjectPreset& preset : Presets()) all.push_back(preset.key);
    return all;
  }();
  return keys;
}

void ApplyNewProjectPreset(wb::Workbook& project, std::string_view key) {
  const std::string_view trimmed = TrimBlanks(key);
  const auto found = std::find_if(Presets().begin(), Presets().end(),
                                  [&](const NewProjectPreset& p) { return p.key == trimmed; });
  if (found == Presets().end()) return;
  WriteIfSet(project, "System", found->system);
  WriteIfSet(project, "Structure", found->structure);
  WriteIfSet(project, "Figure", found->figure);
  WriteIfSet(project, "Table", found->table);
  WriteIfSet(project, "GustType", found->gustType);
  WriteIfSet(project, "Table66RoofType", found->roofType);
  WriteIfSet(project, "Height", found->height);
}

bool FileNew(Application& app, const NewProjectChooser& chooseNewProject) {
  ProcessState& state = app.state;
  wb::Workbook& project = state.ProjectWorkbook();
  try {
    UpdateStatusSummary(project, app.view);
    if (state.modifiedFlag) {
      const PromptAnswer answer =
          app.prompt.Show(Message{"Save", "Save changes to " + state.currentFileName + "?",
                                  PromptIcon::Exclamation, PromptButtons::YesNoCancel});
      if (answer == PromptAnswer::Cancel) return false;
      if (answer == PromptAnswer::Yes) FileSaveAs(app);
    }
    const std::optional<std::string> key = chooseNewProject();
    if (!key) return false;
    project.ReadWorkbook(state.activeTemplatePath);
    state.currentFileName = NextUntitledName(state);
    project.SetTitle("Gustline");
    ApplyNewProjectPreset(project, *key);
    ResetProjectState(state);
    app.view.SetCaption(MainCaption(state.currentFileName));
    UpdateStatusSummary(project, app.view);
    app.report.CreateReport(app);
    wb::Workbook& report = state.ReportWorkbook();
    for (int sheet = 1; sheet <= report.SheetCount(); ++sheet)
      report.SetSheetSelected(sheet, false);
    report.SetMousePointer(1);
    app.view.LayoutReport();
    report.SetActiveSheet(1);
  } catch (const wb::FacilityError& error) {
    ReportFacilityError(app.prompt, error);
    return false;
  }
  return true;
}

}  // namespace gustline
