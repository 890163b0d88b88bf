#include <gtest/gtest.h>

#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QLineEdit>
#include <QPushButton>

#include "DialogTesting.h"
#include "ui/qt/MapFrm.h"
#include "ui/qt/frmWindProp.h"

namespace gustline {
namespace {

using testing::DialogApp;

QPushButton* Button(QWidget& form, const char* name) {
  return form.findChild<QPushButton*>(name);
}

TEST(MapFrmTest, ViewMapShowsTheMapAndTheProjectStaysAsItWas) {
  DialogApp d;
  frmWindProp dialog(d.app);
  dialog.show();
  d.Project().WriteWorkbook(QDir::temp().filePath("map-before.gwb").toStdString(),
                            wb::FileType::Native);
  QPushButton* viewMap = Button(dialog, "Command7");
  ASSERT_TRUE(viewMap->isEnabled());
  viewMap->click();
  auto* map = dialog.findChild<MapFrm*>();
  ASSERT_NE(map, nullptr);
  EXPECT_TRUE(map->isVisible());
  map->resize(900, 650);
  map->Command1_Click();
  map->Command2_Click();
  map->Combo1_Click("50%");
  Button(*map, "Command3")->click();
  EXPECT_FALSE(map->isVisible());
  EXPECT_FALSE(d.state.modifiedFlag);
  EXPECT_EQ(d.report.reports, 0);
  d.Project().WriteWorkbook(QDir::temp().filePath("map-after.gwb").toStdString(),
                            wb::FileType::Native);
  QFile before(QDir::temp().filePath("map-before.gwb"));
  QFile after(QDir::temp().filePath("map-after.gwb"));
  ASSERT_TRUE(before.open(QIODevice::ReadOnly) && after.open(QIODevice::ReadOnly));
  EXPECT_EQ(before.readAll(), after.readAll());
}

TEST(MapFrmTest, ZoomKeepsTheFrameFilledAndIsKeptBetweenShowings) {
  testing::EnsureTestApplication("map_frm_test");
  QWidget owner;
  MapFrm& map = ShowMapFrm(&owner);
  map.resize(700, 500);
  QCoreApplication::processEvents();
  const MapSize natural = map.NaturalSize();
  EXPECT_EQ(map.PictureSize(), natural);
  auto* combo = map.findChild<QComboBox*>("Combo1");
  EXPECT_EQ(combo->count(), 9);
  EXPECT_EQ(combo->currentText(), "100%");

  combo->setEditText("80");
  map.Combo1_Enter();
  EXPECT_EQ(combo->currentText(), "80%");
  EXPECT_DOUBLE_EQ(map.PictureSize().width, natural.width * 0.8);

  map.Combo1_Click("10%");
  const MapSize frame = map.FrameSize();
  EXPECT_GE(map.PictureSize().width, frame.width);
  EXPECT_GE(map.PictureSize().height, frame.height);
  EXPECT_FALSE(Button(map, "Command2")->isEnabled());
  for (int i = 0; i < 20; ++i) map.Command2_Click();
  EXPECT_GE(map.PictureSize().width, frame.width);
  EXPECT_GE(map.PictureSize().height, frame.height);

  map.Command1_Click();
  EXPECT_TRUE(Button(map, "Command2")->isEnabled());
  const MapSize zoomed = map.PictureSize();
  map.hide();
  EXPECT_EQ(&ShowMapFrm(&owner), &map);
  EXPECT_EQ(map.PictureSize(), zoomed);

  map.Combo1_Click("100%");
  EXPECT_TRUE(QDir().mkpath(GUSTLINE_PICTURES_DIR));
  map.findChild<QWidget*>("Image1")
      ->grab()
      .scaledToWidth(1400, Qt::SmoothTransformation)
      .save(QStringLiteral(GUSTLINE_PICTURES_DIR "/wind_speed_map.png"));
  EXPECT_TRUE(map.grab().save(QStringLiteral(GUSTLINE_PICTURES_DIR "/map_viewer.png")));
}

}  // namespace
}  // namespace gustline
