#include <gtest/gtest.h>

#include <QLineEdit>
#include <filesystem>

#include "DialogTesting.h"
#include "core/StartUp.h"
#include "report/ReportGenerator.h"
#include "report/TemplateCatalog.h"
#include "ui/frmWindProp.h"

namespace gustline {
namespace {

// Wind Data from the menu, the wind speed from 90 to 100 mph, OK: the report is built again
// from its template and its velocity pressure follows V squared.
TEST(WindDataRoadTest, NewWindSpeedReachesTheReportAndTheStatusBar) {
  if (!std::filesystem::exists(
          report::TemplatePath(GUSTLINE_BIN_DIR, {"Figure610", TemplateContainer::D}))) {
    GTEST_SKIP() << "Figure610 is not built";
  }
  testing::EnsureApplication();
  ProcessState state;
  state.applicationPath = GUSTLINE_BIN_DIR;
  state.ProjectWorkbook().ReadWorkbook(GUSTLINE_WINDDATA_PATH);
  RecreateLateNames(state.ProjectWorkbook());
  RecordingView view;
  ScriptedPrompt prompt;
  MemorySettings settings;
  report::ReportGenerator generator;
  Application app{state, view, prompt, settings, generator};
  generator.CreateReport(app);
  ASSERT_DOUBLE_EQ(wb::ReadNamedNumber(state.ReportWorkbook(), "qh"), 17.428542112355654);

  ShowWindProperties(app, 1);
  frmWindProp& form = WindPropertiesForm(app);
  ASSERT_TRUE(form.isVisible());
  form.findChild<QLineEdit*>("Text6")->setText("100");
  form.Command1_Click();

  EXPECT_TRUE(prompt.messages.empty());
  EXPECT_FALSE(form.isVisible());
  EXPECT_TRUE(state.modifiedFlag);
  EXPECT_EQ(wb::ReadNamedNumber(state.ProjectWorkbook(), "WindSpeed"), 100);
  const double expected = 17.428542112355654 * (100.0 / 90.0) * (100.0 / 90.0);
  EXPECT_NEAR(wb::ReadNamedNumber(state.ReportWorkbook(), "qh"), expected, 1e-12);
  EXPECT_EQ(view.panels[2], " V = 100.00 mph ");
}

}  // namespace
}  // namespace gustline
