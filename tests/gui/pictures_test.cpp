// Pictures of the window as the user sees it, written for a person to look at.
#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QCoreApplication>
#include <QDir>
#include <QPixmap>
#include <QRadioButton>
#include <QTest>
#include <QTimer>

#include "GuiApp.h"
#include "core/Application.h"
#include "core/ProcessState.h"
#include "core/Prompt.h"
#include "core/Settings.h"
#include "core/StartUp.h"
#include "report/ReportGenerator.h"
#include "report/qt/MainFrm.h"
#include "report/qt/QtApplicationView.h"
#include "simplified/qt/frmSimplified.h"

namespace gustline {
namespace {

bool SavePicture(QWidget& widget, const QString& name) {
  QDir().mkpath(QStringLiteral(GUSTLINE_PICTURES_DIR));
  return widget.grab().save(QStringLiteral(GUSTLINE_PICTURES_DIR "/") + name);
}

TEST(Pictures, MainWindowWithTheDefaultReportAndItsPreview) {
  testing::EnsureApplication();
  MainFrm window;
  QtApplicationView view(window);
  ProcessState state;
  ScriptedPrompt prompt;
  MemorySettings settings;
  report::ReportGenerator report;
  Application app{state, view, prompt, settings, report};
  window.SetApplication(&app);
  window.resize(1100, 820);
  StartApplication(app, QCoreApplication::applicationDirPath().toStdString(), "");
  QTest::qWait(50);
  EXPECT_TRUE(prompt.messages.empty()) << prompt.messages.front().text;
  EXPECT_EQ(window.windowTitle(), QStringLiteral(" Kestrel Ridge Gustline - [PROJECT1.GLN]"));
  EXPECT_EQ(window.StatusPanel(2), QStringLiteral(" V = 90.00 mph "));
  EXPECT_TRUE(SavePicture(window, QStringLiteral("main_window.png")));

  window.RunCommand("mnuFilePrintPreview");
  QTest::qWait(50);
  EXPECT_TRUE(window.Previewing());
  EXPECT_FALSE(window.Command("mnuEditLastCmd")->isEnabled());
  EXPECT_TRUE(SavePicture(window, QStringLiteral("print_preview.png")));
  window.RunCommand("mnuViewNormal");
  EXPECT_FALSE(window.Previewing());
  EXPECT_TRUE(window.Command("mnuEditLastCmd")->isEnabled());
}

// The worked example of the manual's simplified procedure: the toolbar button, components
// and cladding chosen in the dialog, and the report OK builds.
TEST(Pictures, SimplifiedProcedureFromTheDialogToTheReport) {
  testing::EnsureApplication();
  MainFrm window;
  QtApplicationView view(window);
  ProcessState state;
  ScriptedPrompt prompt;
  MemorySettings settings;
  report::ReportGenerator report;
  Application app{state, view, prompt, settings, report};
  window.SetApplication(&app);
  window.resize(1100, 1000);
  StartApplication(app, QCoreApplication::applicationDirPath().toStdString(), "");
  bool shown = false;
  QTimer::singleShot(50, &window, [&] {
    auto* dialog = qobject_cast<frmSimplified*>(QApplication::activeModalWidget());
    ASSERT_NE(dialog, nullptr);
    shown = true;
    EXPECT_EQ(dialog->windowTitle(), QStringLiteral("Simplified Procedure- Design Parameters"));
    dialog->findChild<QRadioButton*>(QStringLiteral("Option1_1"))->click();
    EXPECT_TRUE(SavePicture(*dialog, QStringLiteral("simplified_dialog.png")));
    dialog->Command1_Click();
  });
  QTimer::singleShot(5000, &window, [] {
    if (auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget())) dialog->done(0);
  });
  window.RunCommand("mnuSimplified");
  EXPECT_TRUE(shown);
  EXPECT_TRUE(prompt.messages.empty()) << prompt.messages.front().text;
  EXPECT_EQ(report.TemplateName(), "SimpCompAndClad");
  QTest::qWait(50);
  EXPECT_TRUE(SavePicture(window, QStringLiteral("simplified_report.png")));
}

}  // namespace
}  // namespace gustline
