#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QLineEdit>
#include <QVariant>
#include <initializer_list>

#include "TestApplication.h"
#include "core/Application.h"
#include "core/ApplicationView.h"
#include "core/ProcessState.h"
#include "core/Prompt.h"
#include "core/ReportHook.h"
#include "core/Settings.h"
#include "core/workbook/model/NamedCells.h"
#include "core/workbook/model/Workbook.h"

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

// A text typed into a box, and the message its rule gives at OK; nullptr for a box without
// a rule, which takes any text.
struct RuleCase {
  const char* field;
  const char* text;
  const char* message;
};

// Types the text into the shown dialog and presses OK: a refused text keeps the dialog
// with the rule's message last, and nothing is written or built.
template <typename Dialog>
void ExpectRule(DialogApp& d, Dialog& dialog, const RuleCase& c) {
  SCOPED_TRACE(c.field);
  Field(dialog, c.field)->setText(c.text);
  dialog.Command1_Click();
  EXPECT_EQ(dialog.isVisible(), c.message != nullptr);
  EXPECT_EQ(d.state.modifiedFlag, c.message == nullptr);
  if (c.message == nullptr) return;
  ASSERT_FALSE(d.prompt.messages.empty());
  EXPECT_EQ(d.prompt.messages.back().text, c.message);
}

// ExpectRule for each case in a dialog of its own on the default project.
template <typename Dialog>
void ExpectRules(std::initializer_list<RuleCase> cases) {
  for (const RuleCase& c : cases) {
    DialogApp d;
    Dialog dialog(d.app);
    dialog.show();
    ExpectRule(d, dialog, c);
  }
}

}  // namespace gustline::testing
