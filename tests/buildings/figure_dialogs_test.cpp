#include <gtest/gtest.h>

#include <QCheckBox>
#include <QRadioButton>
#include <QSlider>

#include "DialogTesting.h"
#include "buildings/qt/Fig610.h"
#include "buildings/qt/Fig66.h"

namespace gustline {
namespace {

using testing::DialogApp;
using testing::ExpectRule;
using testing::Field;
using testing::RuleCase;

TEST(FigureDialogsTest, EveryTextBoxRefusesTextOutsideItsRule) {
  const RuleCase rules66[] = {
      {"Text4", "0.5", "Valid values are numbers from 1.000 to 10000.000"},
      {"Text2", "91", "Valid values are numbers from 0.000 to 90.000"},
      {"Text3", "-1", "Valid values are numbers from 0.000 to 90.000"},
      {"Text5", "1001", "Valid values are numbers from 0.000 to 1000.000"},
      {"Text1", "1000.5", "Valid values are numbers from 0.000 to 1000.000"},
      {"Text6", "no rule", nullptr},
      {"Text7", "no rule", nullptr},
  };
  for (const RuleCase& c : rules66) {
    DialogApp d;
    Fig66 fig66(d.app);
    fig66.show();
    ExpectRule(d, fig66, c);
  }
  const RuleCase rules610[] = {
      {"Text1", "90.5", "Valid values are numbers from 0.000 to 90.000"},
      {"Text2", "no rule", nullptr},
  };
  for (const RuleCase& c : rules610) {
    DialogApp d;
    Fig610 fig610(d.app);
    fig610.show();
    ExpectRule(d, fig610, c);
  }
}

TEST(Fig66Test, OpensOnTheCellsWithTheirFormats) {
  DialogApp d;
  Fig66 dialog(d.app);
  const Fig66Values v = dialog.Values();
  EXPECT_EQ(v.leewardLB, "1.000");
  EXPECT_EQ(v.windwardAngle, "23.00");
  EXPECT_EQ(v.area, "150.00");
  EXPECT_EQ(v.hL, "0.000");
  EXPECT_EQ(v.z, "60");                               // a stored 0 shows the height
  EXPECT_FALSE(Field(dialog, "Text6")->isEnabled());  // qi = qh is selected
}

struct Fig66Case {
  int table64;
  double fig63Z;
  int fig63UseQi;
};

TEST(Fig66Test, OkWritesItsCellsAndQiFollowsTheEnclosure) {
  // Partially enclosed keeps the user's z; other classes take qh at `Height`.
  for (const Fig66Case c : {Fig66Case{1, 45, 1}, Fig66Case{2, 60, 0}, Fig66Case{0, 60, 0}}) {
    DialogApp d;
    wb::WriteNamedNumber(d.Project(), "Table64", c.table64);
    Fig66 dialog(d.app);
    Fig66Values v = dialog.Values();
    v.leewardLB = "2.5";
    v.windwardAngle = "30";
    v.leewardAngle = "15";
    v.area = "500";
    v.hL = "0.75";
    v.useQz = true;
    v.z = "45";
    v.hasParapet = true;
    v.parapetElevation = "66";
    dialog.ShowValues(v);
    dialog.Command1_Click();
    EXPECT_TRUE(d.prompt.messages.empty());
    const std::pair<const char*, double> written[] = {
        {"Figure63LB", 2.5},      {"Figure63WinAng", 30}, {"Figure63LeeAng", 15},
        {"Figure63Area", 500},    {"Figure63HL", 0.75},   {"HasParapet", 1},
        {"ParapetElevation", 66}, {"Fig63Z", c.fig63Z},   {"Fig63UseQi", double(c.fig63UseQi)}};
    for (const auto& [name, value] : written)
      EXPECT_EQ(d.Number(name), value) << name << ", enclosure " << c.table64;
    EXPECT_TRUE(d.state.modifiedFlag);
    EXPECT_EQ(d.report.reports, 1);
  }
}

TEST(Fig66Test, BadInputAndCancelWriteNothing) {
  for (const bool cancel : {false, true}) {
    DialogApp d;
    Fig66 dialog(d.app);
    dialog.show();
    Field(dialog, "Text2")->setText("95");
    Field(dialog, "Text1")->setText("3");
    if (cancel) {
      dialog.reject();
    } else {
      dialog.Command1_Click();
      ASSERT_EQ(d.prompt.messages.size(), 1u);
      EXPECT_EQ(d.prompt.messages[0].text, "Valid values are numbers from 0.000 to 90.000");
    }
    EXPECT_EQ(d.Number("Figure63WinAng"), 23);
    EXPECT_EQ(d.Number("Figure63LB"), 1);
    EXPECT_EQ(d.report.reports, 0);
    EXPECT_EQ(dialog.isVisible(), !cancel);
  }
}

TEST(Fig610Test, SliderFillsTheAngleAndOkWritesTheCells) {
  DialogApp d;
  Fig610 dialog(d.app);
  EXPECT_EQ(Field(dialog, "Text1")->text(), "23.00");
  dialog.findChild<QSlider*>("Slider1")->setValue(35);
  EXPECT_EQ(Field(dialog, "Text1")->text(), "35.00");
  dialog.findChild<QCheckBox*>("Check1")->setChecked(true);
  EXPECT_TRUE(Field(dialog, "Text2")->isEnabled());
  Field(dialog, "Text2")->setText("70");
  dialog.Command1_Click();
  EXPECT_EQ(d.Number("Figure64Angle"), 35);
  EXPECT_EQ(d.Number("HasParapets"), 1);
  EXPECT_EQ(d.Number("ParapetElevation"), 70);
  EXPECT_EQ(d.report.reports, 1);
}

}  // namespace
}  // namespace gustline
