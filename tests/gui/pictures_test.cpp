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
#include <filesystem>
#include <system_error>

#include "GuiApp.h"
#include "TempFolder.h"
#include "core/Application.h"
#include "core/ProcessState.h"
#include "core/Prompt.h"
#include "core/Settings.h"
#include "core/StartUp.h"
#include "core/workbook/model/Workbook.h"
#include "report/ReportGenerator.h"
#include "report/qt/MainFrm.h"
#include "report/qt/QtApplicationView.h"
#include "report/qt/ReportView.h"
#include "simplified/qt/frmSimplified.h"

namespace gustline {
namespace {

bool SavePicture(QWidget& widget, const QString& name) {
  QDir().mkpath(QStringLiteral(GUSTLINE_PICTURES_DIR));
  return widget.grab().save(QStringLiteral(GUSTLINE_PICTURES_DIR "/") + name);
}

struct WithApplication {
  WithApplication() { testing::EnsureApplication(); }
};

// The program started on its default project, its window 1100 points wide. Its folder is
// its own, with the built workbooks linked in, since the start writes NORMAL.GLT there and
// tests run side by side.
struct StartedWindow : WithApplication {
  explicit StartedWindow(int height) {
    const std::filesystem::path built =
        std::filesystem::path(QCoreApplication::applicationDirPath().toStdString()) / "workbooks";
    std::filesystem::create_directories(folder);
    std::filesystem::create_directory_symlink(built, folder / "workbooks");
    window.SetApplication(&app);
    window.resize(1100, height);
    StartApplication(app, folder.string(), "");
  }
  ~StartedWindow() {
    std::error_code ignored;
    std::filesystem::remove_all(folder, ignored);
  }
  StartedWindow(const StartedWindow&) = delete;
  StartedWindow& operator=(const StartedWindow&) = delete;

  std::filesystem::path folder = testing::UniqueTempFolder("gustline-pictures-");
  MainFrm window;
  QtApplicationView view{window};
  ProcessState state;
  ScriptedPrompt prompt;
  MemorySettings settings;
  report::ReportGenerator report;
  Application app{state, view, prompt, settings, report};
};

TEST(Pictures, MainWindowWithTheDefaultReportAndItsPreview) {
  StartedWindow started(820);
  MainFrm& window = started.window;
  const ScriptedPrompt& prompt = started.prompt;
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
  StartedWindow started(1000);
  MainFrm& window = started.window;
  const ScriptedPrompt& prompt = started.prompt;
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
  EXPECT_EQ(started.report.TemplateName(), "SimpCompAndClad");
  QTest::qWait(50);
  EXPECT_TRUE(SavePicture(window, QStringLiteral("simplified_report.png")));
}

QImage Drawn(QWidget& widget) {
  return widget.grab().toImage().convertToFormat(QImage::Format_RGB32);
}

// After a rebuild, as after OK in any dialog, the report view draws its page as a view
// made afresh on the same book draws it: with the page's own widths and hidden rows.
TEST(Pictures, ARebuiltReportIsDrawnWithItsPagesOwnLayout) {
  StartedWindow started(820);
  auto* shown = started.window.findChild<report::ReportView*>(QStringLiteral("ServerSS"));
  ASSERT_NE(shown, nullptr);
  for (const int page : {3, 1}) {
    started.state.ReportWorkbook().SetActiveSheet(page);
    started.report.CreateReport(started.app);
    QTest::qWait(20);
    report::ReportView fresh(started.state.ReportWorkbook());
    fresh.resize(shown->size());
    fresh.SetZoom(shown->Zoom());
    fresh.Refresh();
    EXPECT_EQ(Drawn(*shown), Drawn(fresh)) << page;
  }
  EXPECT_TRUE(SavePicture(*shown, QStringLiteral("report_after_rebuild.png")));
}

}  // namespace
}  // namespace gustline
