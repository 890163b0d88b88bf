#include <gtest/gtest.h>

#include <QAction>
#include <QLineEdit>
#include <QTabWidget>
#include <filesystem>

#include "DialogTesting.h"
#include "core/StartUp.h"
#include "report/ReportGenerator.h"
#include "report/TemplateCatalog.h"
#include "report/qt/MainFrm.h"
#include "report/qt/QtApplicationView.h"
#include "ui/qt/frmWindProp.h"

namespace gustline {
namespace {

// The road of one event: Wind Data from the menu, the wind speed from 90 to 100 mph, OK.
// The report is built again from its template, its velocity pressure follows V squared and
// the status bar the new speed.
TEST(WindDataRoadTest, NewWindSpeedReachesTheReportAndTheStatusBar) {
  if (!std::filesystem::exists(
          report::TemplatePath(GUSTLINE_BIN_DIR, {"Figure610", TemplateContainer::D}))) {
    GTEST_SKIP() << "Figure610 is not built";
  }
  testing::EnsureApplication();
  MainFrm window;
  QtApplicationView view{window};
  ProcessState state;
  state.applicationPath = GUSTLINE_BIN_DIR;
  state.ProjectWorkbook().ReadWorkbook(GUSTLINE_WINDDATA_PATH);
  RecreateLateNames(state.ProjectWorkbook());
  ScriptedPrompt prompt;
  MemorySettings settings;
  report::ReportGenerator generator;
  Application app{state, view, prompt, settings, generator};
  window.SetApplication(&app);
  window.show();
  generator.CreateReport(app);
  ASSERT_DOUBLE_EQ(wb::ReadNamedNumber(state.ReportWorkbook(), "qh"), 17.428542112355654);

  window.Command("mnuPropertiesWind")->trigger();
  frmWindProp& form = WindPropertiesForm(app);
  ASSERT_TRUE(form.isVisible());
  EXPECT_EQ(form.findChild<QTabWidget*>("SSTab1")->currentIndex(), 1);
  form.findChild<QLineEdit*>("Text6")->setText("100");
  EXPECT_EQ(window.StatusPanel(2).toStdString(), " V = 100.00 mph");
  form.Command1_Click();

  EXPECT_TRUE(prompt.messages.empty());
  EXPECT_FALSE(form.isVisible());
  EXPECT_TRUE(state.modifiedFlag);
  EXPECT_EQ(wb::ReadNamedNumber(state.ProjectWorkbook(), "WindSpeed"), 100);
  const double expected = 17.428542112355654 * (100.0 / 90.0) * (100.0 / 90.0);
  EXPECT_NEAR(wb::ReadNamedNumber(state.ReportWorkbook(), "qh"), expected, 1e-12);
  EXPECT_EQ(window.StatusPanel(2).toStdString(), " V = 100.00 mph ");
}

}  // namespace
}  // namespace gustline
