#include "report/qt/MaintenanceKeys.h"

#include <QKeySequence>
#include <QPrinter>
#include <QShortcut>

#include "core/Application.h"
#include "core/FacilityErrorReport.h"
#include "core/ProcessState.h"
#include "core/workbook/model/Workbook.h"
#include "core/workbook/value/FacilityError.h"
#include "report/TemplateTemporaryFiles.h"
#include "report/qt/ReportPrinting.h"
#include "report/qt/SheetRenderer.h"
#include "ui/PageSetupValues.h"
#include "ui/qt/WindDataFrm.h"

namespace gustline {
namespace {

void PrintProject(Application& app) {
  wb::Workbook& project = app.state.ProjectWorkbook();
  for (int sheet = 1; sheet <= project.SheetCount(); ++sheet)
    ApplyPageSetupToSheet(app.state.pageSetup, project.GetSheet(sheet).Print());
  report::PrintPages(project, report::ReportPrinter(), 1, report::SheetPageCount(project, 1));
}

}  // namespace

void AddMaintenanceKeys(QWidget& window, const std::function<Application*()>& app) {
  const auto add = [&window, app](const QKeySequence& keys,
                                  void (*command)(QWidget&, Application&)) {
    auto* shortcut = new QShortcut(keys, &window);
    QObject::connect(shortcut, &QShortcut::activated, &window, [&window, app, command] {
      Application* running = app();
      if (running == nullptr) return;
      try {
        command(window, *running);
      } catch (const wb::FacilityError& error) {
        ReportFacilityError(running->prompt, error);
      }
    });
  };
  add(QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_P),
      [](QWidget& w, Application& a) { ShowWindDataFrm(&w, a); });
  add(QKeySequence(Qt::CTRL | Qt::ALT | Qt::Key_P),
      [](QWidget& /*w*/, Application& a) { PrintProject(a); });
  add(QKeySequence(Qt::CTRL | Qt::ALT | Qt::Key_W), [](QWidget& /*w*/, Application& a) {
    report::WriteTemplateTemporaryFiles(a.state.applicationPath);
  });
}

}  // namespace gustline
