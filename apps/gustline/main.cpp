// gustline [PROJECT]: the main window with the report of the project, or of the default
// project when none is named.
#include <QApplication>
#include <QStringList>
#include <string>

#include "core/Application.h"
#include "core/FacilityErrorReport.h"
#include "core/ProcessState.h"
#include "core/StartUp.h"
#include "core/qt/QtSettings.h"
#include "core/workbook/value/FacilityError.h"
#include "report/ReportGenerator.h"
#include "report/qt/MainFrm.h"
#include "report/qt/QtApplicationView.h"
#include "report/qt/QtPrompt.h"

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  QApplication::setApplicationName(QStringLiteral("Gustline"));
  QApplication::setApplicationVersion(QStringLiteral(GUSTLINE_VERSION));
  QApplication::setQuitOnLastWindowClosed(false);

  gustline::ProcessState state;
  gustline::MainFrm window;
  gustline::QtApplicationView view(window);
  gustline::QtPrompt prompt(&window);
  gustline::QtSettings settings;
  gustline::report::ReportGenerator report;
  gustline::Application app{state, view, prompt, settings, report};
  window.SetApplication(&app);

  // The start reads the project's path as the command line carried it, in double quotes.
  const QStringList arguments = QApplication::arguments();
  const std::string commandLine =
      arguments.size() > 1 ? "\"" + arguments.at(1).toStdString() + "\"" : std::string();
  try {
    gustline::StartApplication(app, QApplication::applicationDirPath().toStdString(), commandLine);
  } catch (const gustline::wb::FacilityError& error) {
    // Without the project it carries the program cannot run.
    gustline::ReportFacilityError(prompt, error);
    return 1;
  }
  return QApplication::exec();
}
