#include "core/FileExit.h"

#include <array>

#include "core/Application.h"
#include "core/ApplicationView.h"
#include "core/FacilityErrorReport.h"
#include "core/FileNames.h"
#include "core/ProcessState.h"
#include "core/Prompt.h"
#include "core/ReportHook.h"
#include "core/StartupSettings.h"
#include "core/workbook/model/Workbook.h"
#include "core/workbook/value/FacilityError.h"

namespace gustline {

void DeleteTemporaryBooks(Application& app) {
  constexpr std::array<TemplateContainer, 4> kContainers = {
      TemplateContainer::A, TemplateContainer::B, TemplateContainer::F, TemplateContainer::D};
  for (TemplateContainer container : kContainers)
    for (const std::string& bookName : app.report.BookNamesOn(container))
      DeleteIfPresent(TemporaryBookPath(bookName));
}

bool FileExit(Application& app) {
  ProcessState& state = app.state;
  try {
    if (state.modifiedFlag) {
      const PromptAnswer answer =
          app.prompt.Show(Message{"Save", "Save changes to " + state.currentFileName + "?",
                                  PromptIcon::Exclamation, PromptButtons::YesNoCancel});
      if (answer == PromptAnswer::Cancel) return false;
      if (answer == PromptAnswer::Yes) {
        // Unlike File Save, no page setup is copied and no text dump is written.
        wb::Workbook& project = state.ProjectWorkbook();
        project.SetTitle("Gustline");
        project.SaveWindowInfo();
        project.WriteWorkbook(state.currentFileName, wb::FileType::Native);
      }
    }
    app.view.MoveOutOfView();
    SaveStartupSettings(app);
    DeleteTemporaryBooks(app);
  } catch (const wb::FacilityError& error) {
    ReportFacilityError(app.prompt, error);
    return false;
  }
  return true;
}

}  // namespace gustline
