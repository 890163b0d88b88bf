#include "report/ReportGenerator.h"

#include <variant>

#include "core/Application.h"
#include "core/ApplicationView.h"
#include "core/FacilityErrorReport.h"
#include "core/ProcessState.h"
#include "core/Prompt.h"
#include "core/StatusSummary.h"
#include "core/workbook/model/Workbook.h"
#include "core/workbook/value/FacilityError.h"
#include "geometry/IntervalAreas.h"
#include "report/ReportBuilders.h"
#include "report/ReportRefresh.h"
#include "report/ReportSelection.h"

namespace gustline::report {
namespace {

constexpr const char* kCreatingReport = "Creating report...";

// Where the build stopped: the arrow back and panel 1 empty.
void EndBusy(Application& app) {
  app.state.ReportWorkbook().SetMousePointer(kArrowPointer);
  app.view.SetStatusPanel(1, "");
}

// Iteration lets the templates' circular references settle.
void TurnOnIteration(Application& app) {
  wb::Workbook& report = app.state.ReportWorkbook();
  try {
    const int activeSheet = report.ActiveSheet();
    report.SetIteration(true, 100, 0.001);
    report.SetActiveSheet(activeSheet);
  } catch (const wb::FacilityError& error) {
    ReportFacilityError(app.prompt, error);
  }
}

void SetPrintDefaults(wb::Workbook& report) {
  for (int sheet = 1; sheet <= report.SheetCount(); ++sheet) {
    wb::PrintSetup& print = report.GetSheet(sheet).Print();
    print.gridLines = false;
    print.header.clear();
    print.footer = "&A";
  }
}

}  // namespace

ReportGenerator::ReportGenerator() = default;
ReportGenerator::~ReportGenerator() = default;

void ReportGenerator::CreateReport(Application& app) {
  try {
    BuildReport(app);
  } catch (const wb::FacilityError& error) {
    ReportFacilityError(app.prompt, error);
  }
}

void ReportGenerator::CopyPageSetup(wb::Workbook& from, wb::Workbook& to) {
  report::CopyPageSetup(from, to);
}

std::vector<std::string> ReportGenerator::BookNamesOn(TemplateContainer container) {
  return TemplateNamesOn(container);
}

void ReportGenerator::BuildReport(Application& app) {
  wb::Workbook& project = app.state.ProjectWorkbook();
  wb::Workbook& report = app.state.ReportWorkbook();
  madeReport_ = false;
  const SelectionInputs inputs = ReadSelectionInputs(project);
  app.state.roofTypeCache = static_cast<std::int16_t>(inputs.roofType);
  app.state.note5Cache = static_cast<std::int16_t>(inputs.note5 ? -1 : 0);

  report.SetMousePointer(kHourglassPointer);
  app.view.SetStatusPanel(1, kCreatingReport);
  app.view.RepaintStatusBar();
  try {
    const Selection selection = SelectTemplate(inputs);
    if (const auto* refusal = std::get_if<RangeRefusal>(&selection)) {
      app.prompt.Show(refusal->message);
      EndBusy(app);
      return;
    }
    if (const auto* none = std::get_if<NoTemplate>(&selection)) {
      if (none->message) app.prompt.Show(*none->message);
    } else {
      const ChosenTemplate& chosen = std::get<ChosenTemplate>(selection);
      const wb::Workbook& templateBook = Template(app.state.applicationPath, chosen.id);
      const geometry::AreaContext areas{app.prompt, random_, app.state.ignoreAreaCalculation,
                                        [&app](const std::string& text) {
                                          app.view.SetStatusPanel(1, text);
                                          return std::string(kCreatingReport);
                                        }};
      const BuildContext context{report, project, app.prompt, app.state.applicationPath, areas};
      if (RunBuilder(FindTemplate(chosen.id).builder, templateBook, context)) {
        templateName_ = chosen.id.name;
        madeReport_ = true;
      }
    }

    TurnOnIteration(app);
    SetPrintDefaults(report);
    app.view.SetZoomIndex(app.view.ZoomIndex());
    RefreshReportLinks(report, app.view);
    UpdateStatusSummary(project, app.view);
    FormatReportSheets(report, project);
    report.SetMousePointer(kArrowPointer);
  } catch (const wb::FacilityError&) {
    // Whatever the build reached is shown calculated, as the refresh would have left it.
    report.SetAutoRecalc(true);
    EndBusy(app);
    throw;
  }
}

const wb::Workbook& ReportGenerator::Template(const std::string& applicationPath,
                                              const TemplateId& id) {
  auto& kept = templates_[{id.container, id.name}];
  if (!kept) kept = LoadTemplate(applicationPath, id);
  return *kept;
}

}  // namespace gustline::report
