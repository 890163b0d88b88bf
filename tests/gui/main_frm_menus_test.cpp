#include <gtest/gtest.h>

#include <QAction>
#include <QMenu>
#include <QMenuBar>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "GuiApp.h"
#include "core/RecentFiles.h"
#include "core/Settings.h"
#include "report/qt/MainFrm.h"

namespace gustline {
namespace {

QString Text(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

// The window against the table it is built from: every menu in its place with its title,
// every entry with its caption, shortcut, tick and the prompt of panel 1 on hover (an
// alias the prompt of the entry it runs), and each menu's lines in the table's order.
TEST(MainFrmMenus, EveryLineOfTheTableStandsInItsMenu) {
  testing::EnsureApplication();
  MainFrm window;
  const std::vector<MainFrm::MenuEntry> entries = MainFrm::MenuEntries();
  std::map<std::string_view, std::string_view> prompts;
  std::map<std::string_view, QStringList> lines;
  for (const MainFrm::MenuEntry& entry : entries) {
    SCOPED_TRACE(std::string(entry.menu) + " " + std::string(entry.name));
    lines[entry.menu].append(Text(entry.name));
    if (entry.kind == MainFrm::MenuKind::Separator) continue;
    if (entry.kind == MainFrm::MenuKind::Menu) {
      auto* menu = window.findChild<QMenu*>(Text(entry.name));
      ASSERT_NE(menu, nullptr);
      EXPECT_EQ(menu->title(), Text(entry.caption));
      continue;
    }
    QAction* action = window.Command(entry.name);
    ASSERT_NE(action, nullptr);
    EXPECT_EQ(action->text(), Text(entry.caption));
    EXPECT_EQ(action->shortcut(), entry.shortcut);
    EXPECT_EQ(action->isCheckable(),
              entry.kind == MainFrm::MenuKind::Toggle || entry.kind == MainFrm::MenuKind::Choice);
    prompts[entry.name] =
        entry.kind == MainFrm::MenuKind::Alias ? prompts.at(entry.runs) : entry.prompt;
    auto* menu = qobject_cast<QMenu*>(action->associatedObjects().value(0));
    ASSERT_NE(menu, nullptr);
    EXPECT_EQ(menu->objectName(), Text(entry.menu));
    window.SetStatusPanel(1, QStringLiteral("before"));
    emit menu->hovered(action);
    EXPECT_EQ(window.StatusPanel(1), Text(prompts[entry.name]));
  }
  for (const auto& [name, expected] : lines) {
    SCOPED_TRACE(std::string(name));
    const QList<QAction*> actions = name.empty() ? window.menuBar()->actions()
                                                 : window.findChild<QMenu*>(Text(name))->actions();
    QStringList shown;
    for (const QAction* action : actions) shown.append(action->objectName());
    EXPECT_EQ(shown, expected);
  }
}

TEST(MainFrmMenus, RepeatCommandKeepsTheEntryThatRan) {
  testing::EnsureApplication();
  MainFrm window;
  const std::pair<const char*, const char*> cases[] = {
      {"mnuViewFullScreen", "F&ull Screen"},
      {"mnuEditProperties", "F&ull Screen"},  // not stored
      {"mnuZoomItem(2)", "75%"},
      {"mnuPopupForce", "75%"},                       // not stored
      {"mnuPopupPressure", "A&nalytical Procedure"},  // the entry it runs
      {"mnuViewToolBar", "&Toolbar"},
  };
  for (const auto& [name, stored] : cases) {
    window.RunCommand(name);
    EXPECT_EQ(window.Repeat().LastCommand(), stored) << name;
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
