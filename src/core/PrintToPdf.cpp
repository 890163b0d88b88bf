#include "core/PrintToPdf.h"

#include "core/Application.h"
#include "core/ApplicationView.h"
#include "core/ProcessState.h"
#include "core/ProjectFilesDialogs.h"
#include "core/Prompt.h"

namespace gustline {

bool OfferReportPdf(Application& app) {
  const PromptAnswer answer = app.prompt.Show(
      Message{"Print", "No printer is installed on the system. Save the report as a PDF file?",
              PromptIcon::Question, PromptButtons::YesNo});
  if (answer != PromptAnswer::Yes) return false;
  const auto choice = app.prompt.ChooseSaveFile(PrintToPdfRequest());
  if (!choice) return false;
  app.view.PrintReportToPdf(app.state.ReportWorkbook(), choice->path);
  return true;
}

}  // namespace gustline
