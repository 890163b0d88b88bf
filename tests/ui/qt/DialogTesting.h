#pragma once

#include <QApplication>
#include <QLineEdit>
#include <QVariant>

#include "TestApplication.h"
#include "core/Application.h"
#include "core/ApplicationView.h"
#include "core/ProcessState.h"
#include "core/Prompt.h"
#include "core/ReportHook.h"
#include "core/Settings.h"
#include "core/workbook/NamedCells.h"
#include "core/workbook/Workbook.h"

namespace gustline::testing {

inline void EnsureApplication() {
  EnsureTestApplication("dialog_tests");
}

// A report generator that only counts the reports asked of it.
class CountingReport : public NullReportHook {
 public:
  void CreateReport(Application&) override { ++reports; }
  int reports = 0;
};

// The parts of an application around the WindData that the build carries.
struct DialogApp {
  DialogApp() {
    EnsureApplication();
    state.ProjectWorkbook().ReadWorkbook(GUSTLINE_WINDDATA_PATH);
  }
  wb::Workbook& Project() { return state.ProjectWorkbook(); }
  double Number(const char* name) { return wb::ReadNamedNumber(Project(), name); }

  ProcessState state;
  RecordingView view;
  ScriptedPrompt prompt;
  MemorySettings settings;
  CountingReport report;
  Application app{state, view, prompt, settings, report};
};

template <typename Dialog>
QLineEdit* Field(Dialog& dialog, const char* name) {
  return dialog.template findChild<QLineEdit*>(name);
}

template <typename Dialog>
std::string RuleOf(Dialog& dialog, const char* name) {
  return Field(dialog, name)->property("tag").toString().toStdString();
}

}  // namespace gustline::testing
