#include <gtest/gtest.h>

#include <QAction>
#include <QClipboard>
#include <QComboBox>
#include <QGuiApplication>
#include <QMenu>
#include <QMimeData>
#include <QPrinterInfo>
#include <QStatusBar>
#include <QToolBar>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

#include "GuiApp.h"
#include "TempFolder.h"
#include "core/Application.h"
#include "core/ProcessState.h"
#include "core/Prompt.h"
#include "core/ReportHook.h"
#include "core/Settings.h"
#include "core/workbook/model/Workbook.h"
#include "report/qt/MainFrm.h"
#include "report/qt/QtApplicationView.h"
#include "report/qt/ReportPrinting.h"

namespace gustline {
namespace {

// A base, so that the application exists before the window among the members is made.
struct WithApplication {
  WithApplication() { testing::EnsureApplication(); }
};

// The window with the parts of an application around it, and a prompt the test answers.
struct WindowFixture : WithApplication {
  WindowFixture() {
    window.SetApplication(&app);
    window.show();
  }
  MainFrm window;
  QtApplicationView view{window};
  ProcessState state;
  ScriptedPrompt prompt;
  MemorySettings settings;
  NullReportHook report;
  Application app{state, view, prompt, settings, report};
};

TEST(MainFrm, ZoomMenuAndZoomListAgree) {
  WindowFixture fixture;
  MainFrm& window = fixture.window;
  auto* zoomList = window.findChild<QComboBox*>(QStringLiteral("cboZoom"));
  ASSERT_NE(zoomList, nullptr);
  ASSERT_EQ(zoomList->count(), 8);
  constexpr int kPercents[] = {25, 50, 75, 80, 90, 100, 125, 150};
  for (int index = 0; index < 8; ++index) {
    SCOPED_TRACE(index);
    const std::string item = "mnuZoomItem(" + std::to_string(index) + ")";
    EXPECT_EQ(zoomList->itemText(index), window.Command(item)->text());
    window.Command(item)->trigger();
    EXPECT_EQ(zoomList->currentIndex(), index);
    EXPECT_EQ(window.ZoomPercent(), kPercents[index]);
    const int other = 7 - index;
    emit zoomList->activated(other);
    EXPECT_TRUE(window.Command("mnuZoomItem(" + std::to_string(other) + ")")->isChecked());
    EXPECT_FALSE(window.Command(item)->isChecked() && other != index);
    EXPECT_EQ(fixture.view.ZoomIndex(), other);
  }
}

TEST(MainFrm, CloseAsksTheSaveQuestionAndCancelKeepsTheWindow) {
  WindowFixture fixture;
  fixture.state.modifiedFlag = true;
  fixture.state.currentFileName = "PROJECT1.GLN";
  fixture.prompt.answers = {PromptAnswer::Cancel};
  EXPECT_FALSE(fixture.window.close());
  EXPECT_TRUE(fixture.window.isVisible());
  ASSERT_EQ(fixture.prompt.messages.size(), 1u);
  EXPECT_EQ(fixture.prompt.messages[0],
            (Message{"Save", "Save changes to PROJECT1.GLN?", PromptIcon::Exclamation,
                     PromptButtons::YesNoCancel}));
  EXPECT_TRUE(fixture.settings.values.empty());
}

TEST(MainFrm, ExitWithoutChangesAsksNothingAndSavesZoomAndBars) {
  WindowFixture fixture;
  fixture.window.RunCommand("mnuZoomItem(2)");
  fixture.window.RunCommand("mnuViewToolBar");
  fixture.window.close();
  EXPECT_TRUE(fixture.prompt.messages.empty());
  EXPECT_FALSE(fixture.window.isVisible());
  EXPECT_EQ(fixture.settings.values["Zoom"], "2");
  EXPECT_EQ(fixture.settings.values["Toolbar"], "False");
  EXPECT_EQ(fixture.settings.values["Statusbar"], "True");
}

TEST(MainFrm, FullScreenHidesMenusAndBarsAndNormalRestoresThem) {
  WindowFixture fixture;
  MainFrm& window = fixture.window;
  window.HideToolsMenu();
  window.SetStatusbarVisible(false);
  window.RunCommand("mnuViewFullScreen");
  EXPECT_FALSE(window.findChild<QToolBar*>(QStringLiteral("Toolbar1"))->isVisible());
  EXPECT_FALSE(window.menuWidget()->isVisible());
  window.RunCommand("mnuViewNormal");
  EXPECT_TRUE(window.findChild<QToolBar*>(QStringLiteral("Toolbar1"))->isVisible());
  EXPECT_TRUE(window.menuWidget()->isVisible());
  EXPECT_FALSE(window.statusBar()->isVisible());
  EXPECT_FALSE(window.findChild<QMenu*>(QStringLiteral("mnuTools"))->menuAction()->isVisible());
}

// Copy puts the selected cells on the system clipboard as shown, for a spreadsheet and for
// a word processor; the row the page hides stays behind.
TEST(MainFrm, CopyPutsTheSelectionOnTheClipboardAsShown) {
  for (const char* command : {"mnuEditCopy", "mnuPopupCopy"}) {
    WindowFixture fixture;
    wb::Workbook& report = fixture.state.ReportWorkbook();
    report.SetCellText(1, 1, "qz <psf>");
    wb::CellStyle bold;
    bold.font.bold = true;
    report.SetCellStyle(1, 1, bold);
    report.SetCellNumber(1, 2, 17.428542);
    report.SetSelection("B1");
    report.SetNumberFormat("0.00");
    report.SetCellText(2, 1, "hidden");
    report.SetRowHidden(2, true);
    report.SetCellText(3, 1, "Kzt");
    report.SetCellNumber(3, 2, 1);
    report.SetSelection("A1:B3");
    fixture.window.Command(command)->trigger();
    const QMimeData* data = QGuiApplication::clipboard()->mimeData();
    EXPECT_EQ(data->text(), QStringLiteral("qz <psf>\t17.43\r\nKzt\t1\r\n")) << command;
    EXPECT_EQ(data->html(), QStringLiteral("<table><tr><td><b>qz &lt;psf&gt;</b></td><td>17.43</td>"
                                           "</tr><tr><td>Kzt</td><td>1</td></tr></table>"))
        << command;
  }
}

int PdfPageCount(const std::filesystem::path& path) {
  std::ifstream file(path, std::ios::binary);
  const std::string bytes((std::istreambuf_iterator<char>(file)), std::istreambuf_iterator<char>());
  int pages = 0;
  for (std::size_t at = bytes.find("/Type /Page\n"); at != std::string::npos;
       at = bytes.find("/Type /Page\n", at + 1)) {
    ++pages;
  }
  return bytes.starts_with("%PDF") ? pages : -1;
}

// The report as a PDF from Save As, and from File Print on a system without a printer,
// which asks first: the pages that the printer would print.
TEST(MainFrm, SaveAsAndPrintWithoutAPrinterWriteThePdfOfTheReport) {
  if (!QPrinterInfo::availablePrinters().isEmpty()) GTEST_SKIP() << "a printer is installed";
  for (const char* command : {"mnuFileSaveAs", "mnuFilePrintReport"}) {
    WindowFixture fixture;
    wb::Workbook& report = fixture.state.ReportWorkbook();
    report.SetCellText(1, 1, "Page one");
    report.SetCellText(120, 1, "Page two");
    const std::filesystem::path folder = testing::UniqueTempFolder("gustline-pdf-");
    std::filesystem::create_directories(folder);
    const std::filesystem::path path = folder / "REPORT.PDF";
    fixture.prompt.answers = {PromptAnswer::Yes};
    fixture.prompt.fileChoices = {FileChoice{path.string()}};
    fixture.window.RunCommand(command);
    EXPECT_GT(PdfPageCount(path), 1) << command;
    EXPECT_EQ(PdfPageCount(path), report::ReportPageCount(report)) << command;
    std::filesystem::remove_all(folder);
  }
}

TEST(MainFrm, HelpWithoutTheManualSaysSo) {
  WindowFixture fixture;
  fixture.state.manualPath = "/nowhere/Gustline.pdf";
  fixture.window.RunCommand("mnuHelpContents");
  ASSERT_EQ(fixture.prompt.messages.size(), 1u);
  EXPECT_EQ(
      fixture.prompt.messages[0],
      (Message{"Error", "There is no application associated with the .pdf filename extension.",
               PromptIcon::Stop, PromptButtons::Ok}));
}

}  // namespace
}  // namespace gustline
