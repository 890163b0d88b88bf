#include "core/FileSave.h"

#include <string>

#include "core/Application.h"
#include "core/FacilityErrorReport.h"
#include "core/FileNames.h"
#include "core/FileSaveAs.h"
#include "core/ProcessState.h"
#include "core/Prompt.h"
#include "core/ReportHook.h"
#include "core/StatusSummary.h"
#include "core/workbook/model/Workbook.h"
#include "core/workbook/value/FacilityError.h"

namespace gustline {

bool FileSave(Application& app) {
  ProcessState& state = app.state;
  wb::Workbook& project = state.ProjectWorkbook();
  try {
    UpdateStatusSummary(project, app.view);
    if (state.modifiedFlag) return FileSaveAs(app);
    if (HasFile(state.currentFileName)) {
      const std::string text = state.currentFileName + std::string(kCr) +
                               "This file already exist." + std::string(kCr) + std::string(kCr) +
                               "Replace this file?";
      const PromptAnswer answer = app.prompt.Show(
          Message{"Save Project", text, PromptIcon::Exclamation, PromptButtons::YesNo});
      if (answer != PromptAnswer::Yes) return false;
    }
    project.SetTitle("Gustline");
    project.SaveWindowInfo();
    app.report.CopyPageSetup(state.ReportWorkbook(), project);
    project.WriteWorkbook(state.currentFileName, wb::FileType::Native);
    project.WriteWorkbook(kPropertiesDumpName, wb::FileType::Text);
  } catch (const wb::FacilityError& error) {
    ReportFacilityError(app.prompt, error);
    return false;
  }
  return true;
}

}  // namespace gustline
