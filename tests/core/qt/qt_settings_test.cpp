#include <gtest/gtest.h>

#include <QSettings>
#include <QStandardPaths>
#include <QString>
#include <QTemporaryDir>
#include <fstream>
#include <sstream>
#include <string>

#include "core/qt/QtSettings.h"

namespace gustline {
namespace {

class QtSettingsTest : public ::testing::Test {
 protected:
  void SetUp() override {
    QStandardPaths::setTestModeEnabled(true);
    ASSERT_TRUE(folder_.isValid());
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, folder_.path());
  }

  std::string StoreFile() const { return folder_.filePath("Gustline05.conf").toStdString(); }

 private:
  QTemporaryDir folder_;
};

TEST_F(QtSettingsTest, AbsentKeyGivesTheDefault) {
  QtSettings settings;
  EXPECT_EQ(settings.GetSetting("Zoom", "5"), "5");
  EXPECT_EQ(settings.GetSetting("File1", ""), "");
}

TEST_F(QtSettingsTest, SavedValuesReachTheNextRunUnderStartup) {
  {
    QtSettings settings;
    settings.SaveSetting("Template", "/opt/gustline/NORMAL.GLT");
    settings.SaveSetting("Toolbar", "False");
    settings.SaveSetting("File0", "(Empty)");
  }
  QtSettings nextRun;
  EXPECT_EQ(nextRun.GetSetting("Template", ""), "/opt/gustline/NORMAL.GLT");
  EXPECT_EQ(nextRun.GetSetting("Toolbar", "True"), "False");
  EXPECT_EQ(nextRun.GetSetting("File0", ""), "(Empty)");

  std::ifstream file(StoreFile());
  ASSERT_TRUE(file.good()) << StoreFile();
  std::stringstream text;
  text << file.rdbuf();
  EXPECT_NE(text.str().find("[Startup]"), std::string::npos) << text.str();
}

}  // namespace
}  // namespace gustline
