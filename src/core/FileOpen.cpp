#include "core/FileOpen.h"

#include <sstream>
#include <string>

#include "core/Application.h"
#include "core/ApplicationView.h"
#include "core/FileNames.h"
#include "core/FileSave.h"
#include "core/ProcessState.h"
#include "core/ProjectFileTest.h"
#include "core/ProjectFilesDialogs.h"
#include "core/ProjectFilesExtensions.h"
#include "core/Prompt.h"
#include "core/RecentFiles.h"
#include "core/ReportHook.h"
#include "core/StatusSummary.h"
#include "core/workbook/io/NativeFormat.h"
#include "core/workbook/model/Workbook.h"
#include "core/workbook/value/FacilityError.h"

namespace gustline {
namespace {

constexpr const char* kBookTitle = "Gustline";

// The project as it stands before an open, to be put back whole when the open fails.
class ProjectSnapshot {
 public:
  explicit ProjectSnapshot(Application& app) : app_(app), fileName_(app.state.currentFileName) {
    wb::WriteNative(app.state.ProjectWorkbook(), book_);
  }

  void Restore() {
    wb::Workbook& project = app_.state.ProjectWorkbook();
    project.SetMousePointer(1);
    std::istringstream in(book_.str());
    wb::ReadNative(in, project);
    app_.state.currentFileName = fileName_;
    app_.view.SetCaption(MainCaption(LastPathPart(fileName_)));
  }

 private:
  Application& app_;
  std::string fileName_;
  std::stringstream book_;
};

void ReadAndTest(wb::Workbook& project, const std::string& path) {
  project.ReadWorkbook(path);
  if (!TestProjectFile(project))
    throw wb::FacilityError(wb::errc::kFileCorrupt, path + " is not a Gustline project");
}

// The user is told why a file did not open; a missing printer has a message of its own.
void ReportOpenFailure(Application& app, const wb::FacilityError& error, const std::string& path) {
  if (error.Number() == wb::errc::kNoPrinter) {
    app.prompt.Show(Message{"",
                            "Error: No printer detected. check (Windows) Start->Settings->Printers",
                            PromptIcon::Stop, PromptButtons::Ok});
    return;
  }
  app.prompt.Show(
      Message{"Error", "Unable to Open File : " + path, PromptIcon::Stop, PromptButtons::Ok});
}

}  // namespace

bool FileOpen(Application& app) {
  ProcessState& state = app.state;
  wb::Workbook& project = state.ProjectWorkbook();
  if (state.modifiedFlag) {
    const PromptAnswer answer =
        app.prompt.Show(Message{"Save", "Save  " + state.currentFileName + "?",
                                PromptIcon::Exclamation, PromptButtons::YesNoCancel});
    if (answer == PromptAnswer::Cancel) return false;
    if (answer == PromptAnswer::Yes) FileSave(app);
  }
  const auto choice = app.prompt.ChooseOpenFile(OpenProjectRequest());
  if (!choice) return false;
  const std::string& path = choice->path;
  ProjectSnapshot snapshot(app);
  try {
    project.SetMousePointer(11);
    const std::string fileTitle = LastPathPart(path);
    switch (FileTypeOfName(path).value_or(0)) {
      case kProjectFileType:
        ReadAndTest(project, path);
        project.SetTitle(kBookTitle);
        app.view.SetCaption(MainCaption(fileTitle));
        state.recentFiles.Add(path);
        app.view.ShowRecentFiles(state.recentFiles);
        state.currentFileName = path;
        break;
      case kTemplateFileType:
        project.SetTitle(kBookTitle);
        ReadAndTest(project, path);
        state.currentFileName = ProjectNameFromTemplate(path);
        app.view.SetCaption(MainCaption(fileTitle));
        break;
      default:
        break;
    }
    UpdateStatusSummary(project, app.view);
    app.report.CreateReport(app);
    app.report.CopyPageSetup(project, state.ReportWorkbook());
    project.SetMousePointer(1);
  } catch (const wb::FacilityError& error) {
    snapshot.Restore();
    ReportOpenFailure(app, error, path);
    return false;
  }
  return true;
}

bool OpenRecentFile(Application& app, int entry) {
  ProcessState& state = app.state;
  const std::string path = state.recentFiles.Entry(entry).caption;
  if (path.empty() || path == kEmptyRecentEntry) return false;
  wb::Workbook& project = state.ProjectWorkbook();
  ProjectSnapshot snapshot(app);
  try {
    project.ReadWorkbook(path);
    app.report.CopyPageSetup(state.ReportWorkbook(), project);
    state.recentFiles.Add(path);
    app.view.ShowRecentFiles(state.recentFiles);
    app.report.CreateReport(app);
    app.view.SetCaption(MainCaption(LastPathPart(path)));
    UpdateStatusSummary(project, app.view);
    state.currentFileName = path;
  } catch (const wb::FacilityError& error) {
    snapshot.Restore();
    ReportOpenFailure(app, error, path);
    return false;
  }
  return true;
}

}  // namespace gustline
