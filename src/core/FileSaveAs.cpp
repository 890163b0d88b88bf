#include "core/FileSaveAs.h"

#include "core/Application.h"
#include "core/ApplicationView.h"
#include "core/CopyBookToBuffer.h"
#include "core/FileNames.h"
#include "core/ProcessState.h"
#include "core/ProjectFilesDialogs.h"
#include "core/ProjectFilesExtensions.h"
#include "core/Prompt.h"
#include "core/ReportHook.h"
#include "core/workbook/value/FacilityError.h"

namespace gustline {
namespace {

// The project with the report's page setup, under its title, written whole.
void WriteProject(Application& app, const std::string& path) {
  wb::Workbook& project = app.state.ProjectWorkbook();
  project.SetTitle("Gustline");
  project.SaveWindowInfo();
  app.report.CopyPageSetup(app.state.ReportWorkbook(), project);
  project.WriteWorkbook(path, wb::FileType::Native);
}

}  // namespace

void ExportReport(Application& app, const std::string& path, wb::FileType type) {
  wb::Workbook& buffer = app.state.BufferWorkbook();
  buffer.ClearAll();
  if (CopyBookToBuffer(app.prompt, app.state.ReportWorkbook(), -1, -1, buffer, 1))
    buffer.WriteWorkbook(path, type);
}

bool FileSaveAs(Application& app) {
  ProcessState& state = app.state;
  const auto choice = app.prompt.ChooseSaveFile(SaveAsRequest());
  if (!choice) return false;
  const std::string& path = choice->path;
  try {
    switch (FileTypeOfName(path).value_or(0)) {
      case kProjectFileType:
        WriteProject(app, path);
        state.currentFileName = path;
        app.view.SetCaption(MainCaption(LastPathPart(path)));
        break;
      case kTextExportType:
        ExportReport(app, path, wb::FileType::Text);
        break;
      case kExcelExportType:
        ExportReport(app, path, wb::FileType::Excel5);
        break;
      case kPdfExportType:
        app.view.PrintReportToPdf(state.ReportWorkbook(), path);
        break;
      case kTemplateFileType:
        WriteProject(app, path);
        state.currentFileName = ProjectNameFromTemplate(path);
        app.view.SetCaption(MainCaption(state.currentFileName));
        break;
      default:
        break;
    }
  } catch (const wb::FacilityError&) {
    return false;
  }
  state.modifiedFlag = false;
  return true;
}

}  // namespace gustline
