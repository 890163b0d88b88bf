#include <gtest/gtest.h>

#include <QAction>
#include <QMenu>
#include <QMenuBar>
#include <string>

#include "GuiApp.h"
#include "core/RecentFiles.h"
#include "core/Settings.h"
#include "report/qt/MainFrm.h"

namespace gustline {
namespace {

struct MenuEntryCase {
  const char* name;
  const char* caption;
  const char* prompt;
};

// Entries of the menu bar and the popup menu as the user meets them: object name, caption and
// the prompt of panel 1; the odd spacing and empty prompts are the program's own.
constexpr MenuEntryCase kMenuEntries[] = {
    {"mnuFileNew", "&New...", "Create new project."},
    {"mnuFileSave", "&Save", "Save the active project."},
    {"mnuFilePrintReport", "&Print...", "Print ASCE 7-05 Gustline Report."},
    {"mnuFileExit", "E&xit", "Quits the application; Prompts you to save project properties."},
    {"mnuEditCopy", "&Copy", "Copy selected cells to clipboard."},
    {"mnuEditLastCmd", "&Repeat Command", "Repeat last executed command."},
    {"mnuEditProperties", "Project Properties...", ""},
    {"mnuViewFullScreen", "F&ull Screen", ""},
    {"mnuViewToolBar", "&Toolbar", "Toggle Toolbar ON or OFF."},
    {"mnuZoomItem(0)", "25%", "Changes magnification of displayed document."},
    {"mnuZoomItem(7)", "150%", "Changes magnification of displayed document."},
    {"mnuPropertiesEquation", "A&nalytical Procedure", "Use Method 2- Analytical Procedure"},
    {"mnuPropertiesWind", "&Wind Data...",
     "Select basic wind speed, exposure, category, and mean sea level."},
    {"mnuSimplified", "&Simplified Procedure", "Use Method 1 - Simplified Procedure"},
    {"mnuInternal", "&Internal Pressure Coefficient...",
     "Set internal pressure coefficient for buildings, GCpi."},
    {"mnuMinPressure", "&Minimum Wind Pressure...", ""},
    {"mnuPropertiesGeometry", "Define Geometry...", "Enter geometry X-Y coordinates."},
    {"mnuPropertiesHeadings", "Page Headings...",
     "Set page heading properties for ASCE 7-05 gustline report."},
    {"mnuPropertiesUnits", "&Units...", "Select units of measure for pressure, force and moment."},
    {"mnuToolsGustCalc", "&Gust Factor Calculator...", ""},
    {"mnuOptions", "&Options...", ""},
    {"mnuHelpContents", "&Contents", "Display help table of contents."},
    {"mnuHelpAbout", "&About ", "Displays program information, version number and copyright."},
    {"mnuPopupCopy", "&Copy", "Copy selected cells to clipboard."},
    {"mnuPopupPressure", "&Design Equation...", "Use Method 2- Analytical Procedure"},
    {"mnuPopupWind", "&Wind Data...",
     "Select basic wind speed, exposure, category, and mean sea level."},
    {"mnuPopupForce", "&Force or Pressure Coefficients...", ""},
};

TEST(MainFrmMenus, EveryEntryHasItsCaptionAndShowsItsPromptOnHover) {
  testing::EnsureApplication();
  MainFrm window;
  for (const MenuEntryCase& entry : kMenuEntries) {
    SCOPED_TRACE(entry.name);
    QAction* action = window.Command(entry.name);
    ASSERT_NE(action, nullptr);
    EXPECT_EQ(action->text().toStdString(), entry.caption);
    auto* menu = qobject_cast<QMenu*>(action->associatedObjects().value(0));
    ASSERT_NE(menu, nullptr);
    window.SetStatusPanel(1, QStringLiteral("before"));
    emit menu->hovered(action);
    EXPECT_EQ(window.StatusPanel(1).toStdString(), entry.prompt);
  }
}

TEST(MainFrmMenus, MenuTitlesPromptAndClosingEmptiesPanelOne) {
  testing::EnsureApplication();
  MainFrm window;
  auto* file = window.findChild<QMenu*>(QStringLiteral("mnuFile"));
  ASSERT_NE(file, nullptr);
  emit file->aboutToShow();
  EXPECT_EQ(window.StatusPanel(1),
            QStringLiteral("Press letter on menu title, or use arrow keys and press ENTER"));
  emit file->aboutToHide();
  EXPECT_TRUE(window.StatusPanel(1).isEmpty());
}

struct ButtonCase {
  const char* key;
  const char* toolTip;
  const char* storedCaption;  // of the menu command the button runs
};

TEST(MainFrmMenus, ToolbarButtonsRunTheirMenuCommands) {
  testing::EnsureApplication();
  constexpr ButtonCase kButtons[] = {
      {"New", "New", "&New..."},
      {"Open", "Open", "&Open..."},
      {"Save", "Save", "&Save"},
      {"Print", "Print", "&Print..."},
      {"PrintPreview", "Print Preview", "Print Pre&view"},
      {"Analytical", "Analytical Procedure", "A&nalytical Procedure"},
      {"Simplified", "Simplified Procedure", "&Simplified Procedure"},
      {"Geometry", "Define Geometry", "Define Geometry..."},
  };
  MainFrm window;
  for (const ButtonCase& button : kButtons) {
    SCOPED_TRACE(button.key);
    auto* action = window.findChild<QAction*>(QString::fromUtf8(button.key));
    ASSERT_NE(action, nullptr);
    EXPECT_EQ(action->toolTip().toStdString(), button.toolTip);
    action->trigger();
    EXPECT_EQ(window.Repeat().LastCommand(), button.storedCaption);
  }
}

TEST(MainFrmMenus, RecentListShowsItsEntriesWithAmpersandsDoubled) {
  testing::EnsureApplication();
  MainFrm window;
  RecentFiles recentFiles;
  MemorySettings settings;
  recentFiles.Load(settings);
  window.ShowRecentFiles(recentFiles);
  QAction* first = window.Command("mnuFileArray(0)");
  EXPECT_FALSE(first->isEnabled());
  EXPECT_FALSE(window.Command("mnuFileArray(1)")->isVisible());
  recentFiles.Add("/projects/R&D.GLN");
  window.ShowRecentFiles(recentFiles);
  EXPECT_EQ(first->text(), QStringLiteral("/projects/R&&D.GLN"));
  EXPECT_TRUE(first->isEnabled());
}

}  // namespace
}  // namespace gustline
