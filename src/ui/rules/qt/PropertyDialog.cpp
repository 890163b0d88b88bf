#include "ui/rules/qt/PropertyDialog.h"

#include "core/FacilityErrorReport.h"
#include "core/ProcessState.h"
#include "core/ReportHook.h"
#include "core/StatusSummary.h"
#include "core/workbook/value/FacilityError.h"

namespace gustline {

void AcceptPropertyValues(QDialog& dialog, Application& app,
                          const std::function<void(wb::Workbook&)>& write, bool buildReport) {
  try {
    write(app.state.ProjectWorkbook());
  } catch (const wb::FacilityError& error) {
    ReportFacilityError(app.prompt, error);
  }
  app.state.modifiedFlag = true;
  dialog.accept();
  if (buildReport) app.report.CreateReport(app);
}

bool ExecProperties(Application& app, const std::function<int()>& exec) {
  try {
    UpdateStatusSummary(app.state.ProjectWorkbook(), app.view);
    return exec() == QDialog::Accepted;
  } catch (const wb::FacilityError& error) {
    ReportFacilityError(app.prompt, error);
    return false;
  }
}

}  // namespace gustline
