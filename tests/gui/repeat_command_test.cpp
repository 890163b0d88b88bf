#include <gtest/gtest.h>

#include <QAction>
#include <QToolBar>
#include <map>
#include <string>

#include "GuiApp.h"
#include "report/qt/MainFrm.h"
#include "report/qt/RepeatCommand.h"

namespace gustline {
namespace {

using Captions = std::map<std::string, std::string, std::less<>>;

struct RepeatCase {
  const char* label;
  const char* lastCommand;
  Captions captions;
  const char* expected;
};

// Captions that coincide show the order of comparison: the command met first wins.
TEST(RepeatCommand, RunsTheFirstCommandInOrderWhoseCaptionIsTheLastCommand) {
  const RepeatCase kCases[] = {
      {"nothing run yet", "", {{"mnuFileNew", ""}}, ""},
      {"no caption matches", "25%", {{"mnuFileNew", "&New..."}}, ""},
      {"case counts", "&new...", {{"mnuFileNew", "&New..."}}, ""},
      {"file before edit", "X", {{"mnuEditCopy", "X"}, {"mnuFileSaveAs", "X"}}, "mnuFileSaveAs"},
      {"view before parameters",
       "X",
       {{"mnuPropertiesEquation", "X"}, {"mnuViewStatus", "X"}},
       "mnuViewStatus"},
      {"geometry before simplified",
       "X",
       {{"mnuSimplified", "X"}, {"mnuPropertiesGeometry", "X"}},
       "mnuPropertiesGeometry"},
      {"format before help",
       "X",
       {{"mnuHelpAbout", "X"}, {"mnuFormatNumber", "X"}},
       "mnuFormatNumber"},
      {"the last of the order", "X", {{"mnuHelpAbout", "X"}}, "mnuHelpAbout"},
      {"outside the order", "X", {{"mnuPopupForce", "X"}, {"mnuFileExit", "X"}}, ""},
  };
  for (const RepeatCase& test : kCases) {
    SCOPED_TRACE(test.label);
    RepeatCommand repeat;
    repeat.Store(test.lastCommand);
    const std::string_view found = repeat.Find([&](std::string_view name) {
      const auto caption = test.captions.find(name);
      return caption == test.captions.end() ? std::string("?") : caption->second;
    });
    EXPECT_EQ(found, test.expected);
  }
}

TEST(RepeatCommand, RepeatRunsTheCommandAgainAndStaysRepeatable) {
  testing::EnsureApplication();
  MainFrm window;
  window.show();
  auto* toolbar = window.findChild<QToolBar*>(QStringLiteral("Toolbar1"));
  window.RunCommand("mnuViewToolBar");
  EXPECT_FALSE(toolbar->isVisible());
  window.RunCommand("mnuEditLastCmd");
  EXPECT_TRUE(toolbar->isVisible());
  EXPECT_TRUE(window.Command("mnuViewToolBar")->isChecked());
  EXPECT_EQ(window.Repeat().LastCommand(), "&Toolbar");
  window.RunCommand("mnuEditLastCmd");
  EXPECT_FALSE(toolbar->isVisible());
}

TEST(RepeatCommand, PopupEntriesStoreTheCaptionOfTheirMenuCounterpart) {
  testing::EnsureApplication();
  MainFrm window;
  window.RunCommand("mnuPropertiesGeometry");
  window.RunCommand("mnuPopupForce");
  EXPECT_EQ(window.Repeat().LastCommand(), "Define Geometry...");
  window.RunCommand("mnuEditLastCmd");
  EXPECT_EQ(window.Repeat().LastCommand(), "Define Geometry...");
  window.Command("mnuPopupWind")->trigger();
  EXPECT_EQ(window.Repeat().LastCommand(), "&Wind Data...");
  window.RunCommand("mnuEditProperties");
  EXPECT_EQ(window.Repeat().LastCommand(), "&Wind Data...");
}

}  // namespace
}  // namespace gustline
