#include <gtest/gtest.h>

#include <QCheckBox>
#include <QPushButton>
#include <QRadioButton>
#include <QSlider>
#include <functional>
#include <string>
#include <utility>

#include "DialogTesting.h"
#include "buildings/qt/Fig610.h"
#include "buildings/qt/Fig611.h"
#include "buildings/qt/Fig617.h"
#include "buildings/qt/Fig66.h"

namespace gustline {
namespace {

using testing::DialogApp;
using testing::ExpectRules;
using testing::Field;

TEST(FigureDialogsTest, EveryTextBoxRefusesTextOutsideItsRule) {
  const char* const zeroTo90 = "Valid values are numbers from 0.000 to 90.000";
  const char* const zeroTo1000 = "Valid values are numbers from 0.000 to 1000.000";
  const char* const zeroTo45 = "Valid values are numbers from 0.000 to 45.000";
  const char* const oneTo1000 = "Valid values are numbers from 1.000 to 1000.000";
  ExpectRules<Fig66>({{"Text4", "0.5", "Valid values are numbers from 1.000 to 10000.000"},
                      {"Text2", "91", zeroTo90},
                      {"Text3", "-1", zeroTo90},
                      {"Text5", "1001", zeroTo1000},
                      {"Text1", "1000.5", zeroTo1000},
                      {"Text6", "no rule", nullptr},
                      {"Text7", "no rule", nullptr}});
  ExpectRules<Fig610>({{"Text1", "90.5", zeroTo90}, {"Text2", "no rule", nullptr}});
  // Zones 2' and 3' are greyed for gabled roofs and still checked.
  ExpectRules<Fig611>({{"Text6", "45.01", zeroTo45},
                       {"Text7", "0.5", oneTo1000},
                       {"Text8", "1000.5", oneTo1000},
                       {"Text1", "no rule", nullptr},
                       {"Text4", "no rule", nullptr},
                       {"Text9", "no rule", nullptr}});
  ExpectRules<Fig617>({{"Text6", "-0.1", zeroTo45},
                       {"Text1", "no rule", nullptr},
                       {"Text7", "no rule", nullptr},
                       {"Text9", "no rule", nullptr}});
}

// Cancel, or OK refused by one box, writes none of the boxes.
TEST(FigureDialogsTest, CancelAndARefusedOkWriteNothing) {
  const std::function<void(DialogApp&)> leaves[] = {
      [](DialogApp& d) {
        Fig611 dialog(d.app);
        dialog.show();
        Field(dialog, "Text6")->setText("5");
        Field(dialog, "Text1")->setText("40");
        dialog.findChild<QCheckBox*>("Check1")->setChecked(true);
        Field(dialog, "Text9")->setText("70");
        dialog.findChild<QRadioButton*>("Option1_2")->click();
        dialog.findChild<QPushButton*>("Command2")->click();
      },
      [](DialogApp& d) {
        Fig617 dialog(d.app);
        dialog.show();
        Field(dialog, "Text6")->setText("5");
        Field(dialog, "Text1")->setText("40");
        Field(dialog, "Text9")->setText("4");
        dialog.findChild<QPushButton*>("Command2")->click();
      },
      [](DialogApp& d) {
        for (const bool cancel : {false, true}) {
          Fig66 dialog(d.app);
          dialog.show();
          Field(dialog, "Text2")->setText("95");
          Field(dialog, "Text1")->setText("3");
          if (cancel) {
            dialog.reject();
          } else {
            dialog.Command1_Click();
            EXPECT_TRUE(dialog.isVisible());
          }
        }
      },
  };
  for (const auto& leave : leaves) {
    DialogApp d;
    leave(d);
    const std::pair<const char*, double> kept[] = {
        {"Figure65BAngle", 23}, {"Figure65BZone1", 1},     {"Figure68Angle", 23},
        {"Figure68Zone1", 1},   {"HasParapet", 0},         {"ParapetElevation", 62},
        {"ParapetHeight", 2},   {"Fig611Note5Applies", 0}, {"Figure63WinAng", 23},
        {"Figure63LB", 1}};
    for (const auto& [name, value] : kept) EXPECT_EQ(d.Number(name), value) << name;
    EXPECT_FALSE(d.state.modifiedFlag);
    EXPECT_EQ(d.report.reports, 0);
  }
}

struct Note5Case {
  bool parapet;
  const char* elevation;
  const char* angle;
  bool applies;
};

TEST(Fig611Test, Note5IsDecidedAtOkFromTheParapetAboveTheRoof) {
  // `Height` is 60 ft in the project as built.
  const Note5Case cases[] = {
      {true, "63", "7", true},   {true, "62.9", "7", false}, {true, "63", "7.1", false},
      {false, "63", "7", false}, {true, "50", "5", false},   {true, "70", "0", true},
  };
  for (const Note5Case& c : cases) {
    SCOPED_TRACE(std::string(c.elevation) + " ft at " + c.angle + " deg");
    DialogApp d;
    wb::WriteNamedInt(d.Project(), "Fig611Note5Applies", 1);  // from an earlier OK
    Fig611 dialog(d.app);
    Fig611Values v = dialog.Values();
    v.angle = c.angle;
    v.zone2 = "20";
    v.zone3 = "30";
    v.hasParapet = c.parapet;
    v.parapetElevation = c.elevation;
    dialog.ShowValues(v);
    dialog.Command1_Click();
    EXPECT_TRUE(d.prompt.messages.empty());
    EXPECT_EQ(d.Number("Fig611Note5Applies"), c.applies ? 1 : 0);
    EXPECT_EQ(d.Number("Fig611BZone4"), c.applies ? 20 : 1);
    EXPECT_EQ(d.Number("Fig611BZone5"), c.applies ? 30 : 1);
    EXPECT_DOUBLE_EQ(d.Number("ParapetHeight"), c.applies ? std::stod(c.elevation) - 60 : 2);
    // The roof and the parapet are written whether or not the note holds.
    EXPECT_EQ(d.Number("Figure65BAngle"), std::stod(c.angle));
    EXPECT_EQ(d.Number("Figure65BZone3"), 30);
    EXPECT_EQ(d.Number("HasParapet"), c.parapet ? 1 : 0);
    EXPECT_EQ(d.Number("ParapetElevation"), std::stod(c.elevation));
  }
}

TEST(Fig611Test, EachRoofTypeShowsAndWritesItsOwnCells) {
  const char* const roofCells[4][4] = {
      {"Figure65BZone1", "Figure65BZone2", "Figure65BZone3", "Figure65BAngle"},
      {"Figure66Zone1", "Figure66Zone2", "Figure66Zone3", "Figure66Angle"},
      {"Figure67AZone1", "Figure67AZone2", "Figure67AZone3", "Figure67AAngle"},
      {"Figure67BZone1", "Figure67BZone2", "Figure67BZone3", "Figure67BAngle"},
  };
  const auto stored = [](int type, int cell) { return 10.0 * (type + 1) + cell; };
  for (int figure = 3; figure <= 6; ++figure) {
    const int type = figure - 3;
    SCOPED_TRACE("Figure " + std::to_string(figure));
    DialogApp d;
    for (int t = 0; t < 4; ++t) {
      for (int cell = 0; cell < 4; ++cell)
        wb::WriteNamedNumber(d.Project(), roofCells[t][cell], stored(t, cell));
    }
    Fig611 dialog(d.app, Fig611RoofType(figure));
    dialog.show();
    EXPECT_TRUE(dialog.findChild<QRadioButton*>(QString("Option1_%1").arg(type))->isChecked());
    EXPECT_EQ(Field(dialog, "Text1")->text().toDouble(), stored(type, 0));
    EXPECT_EQ(Field(dialog, "Text3")->text().toDouble(), stored(type, 2));
    EXPECT_EQ(Field(dialog, "Text6")->text(), QString::number(stored(type, 3)) + ".00");
    for (const char* name : {"Text1", "Text2", "Text3", "Text6"}) Field(dialog, name)->setText("7");
    Field(dialog, "Text4")->setText("400");
    Field(dialog, "Text7")->setText("200");
    Field(dialog, "Text8")->setText("300");
    dialog.Command1_Click();
    for (int t = 0; t < 4; ++t) {
      for (int cell = 0; cell < 4; ++cell)
        EXPECT_EQ(d.Number(roofCells[t][cell]), t == type ? 7 : stored(t, cell))
            << roofCells[t][cell];
    }
    EXPECT_EQ(d.Number("Figure65AZone4"), 400);
    EXPECT_EQ(d.Number("Figure67AZ2p"), type == 2 ? 200 : 1);
    EXPECT_EQ(d.Number("Figure67AZ3p"), type == 2 ? 300 : 1);
  }
}

TEST(Fig611Test, ChoosingARoofTypeShowsItsCellsAndOffersZones2pAnd3pForMonoslope) {
  DialogApp d;
  wb::WriteNamedNumber(d.Project(), "Figure67AZone1", 45);
  wb::WriteNamedNumber(d.Project(), "Figure67AAngle", 5);
  Fig611 dialog(d.app);
  dialog.show();
  Field(dialog, "Text4")->setText("80");
  for (const int type : {2, 1, 3, 0, 2}) {
    SCOPED_TRACE(type);
    dialog.findChild<QRadioButton*>(QString("Option1_%1").arg(type))->click();
    for (const char* name : {"Label7", "Text7", "Label8", "Text8"})
      EXPECT_EQ(dialog.findChild<QWidget*>(name)->isEnabled(), type == 2) << name;
    EXPECT_EQ(Field(dialog, "Text1")->text(), type == 2 ? "45" : "1");
    EXPECT_EQ(Field(dialog, "Text6")->text(), type == 2 ? "5.00" : "23.00");
    EXPECT_EQ(Field(dialog, "Text4")->text(), "80");  // the walls belong to every type
  }
}

// The option whose caption starts so.
template <typename Dialog>
QRadioButton* Option(Dialog& dialog, const QString& caption) {
  for (QRadioButton* option : dialog.template findChildren<QRadioButton*>()) {
    if (option->text().startsWith(caption)) return option;
  }
  return nullptr;
}

TEST(FigureDialogsTest, ParapetOptionsWriteTheEnclosureClass) {
  const std::pair<const char*, int> options[] = {
      {"Enclosed ", 2}, {"Partially Enclosed ", 1}, {"Open ", 0}};
  for (const auto& [caption, parapetGCpi] : options) {
    SCOPED_TRACE(caption);
    DialogApp d611;
    wb::WriteNamedInt(d611.Project(), "ParapetGCpi", (parapetGCpi + 1) % 3);
    Fig611 fig611(d611.app);
    Option(fig611, caption)->setChecked(true);
    fig611.Command1_Click();
    EXPECT_EQ(d611.Number("ParapetGCpi"), parapetGCpi);
    DialogApp d617;
    wb::WriteNamedInt(d617.Project(), "ParapetGCpi", parapetGCpi);
    Fig617 fig617(d617.app);
    EXPECT_TRUE(Option(fig617, caption)->isChecked());
  }
}

struct Fig617Case {
  int table64;
  double fig68Z;
  int fig68UseQi;
};

TEST(Fig617Test, OkWritesItsCellsAndQiFollowsTheEnclosure) {
  // Partially enclosed keeps the user's z; other classes take qh at `Height`.
  for (const Fig617Case c : {Fig617Case{1, 45, 1}, Fig617Case{2, 60, 0}, Fig617Case{0, 60, 0}}) {
    SCOPED_TRACE(c.table64);
    DialogApp d;
    wb::WriteNamedNumber(d.Project(), "Table64", c.table64);
    Fig617 dialog(d.app);
    dialog.show();
    EXPECT_EQ(dialog.findChild<QRadioButton*>("Option1_1")->isEnabled(), c.table64 == 1);
    dialog.findChild<QSlider*>("Slider1")->setValue(12);
    EXPECT_EQ(Field(dialog, "Text6")->text(), "12.00");
    Fig617Values v = dialog.Values();
    v.zone1 = "11";
    v.zone5 = "55";
    v.useQz = true;
    v.z = "45";
    v.hasParapet = true;
    v.parapetElevation = "90";
    v.parapetHeight = "4";
    dialog.ShowValues(v);
    dialog.Command1_Click();
    EXPECT_TRUE(d.prompt.messages.empty());
    // Both parapet cells come from their own fields: 4 ft is not 90 ft less `Height`.
    const std::pair<const char*, double> written[] = {
        {"Figure68Angle", 12},    {"Figure68Zone1", 11},
        {"Figure68Zone5", 55},    {"HasParapet", 1},
        {"ParapetElevation", 90}, {"ParapetHeight", 4},
        {"Fig68Z", c.fig68Z},     {"Fig68UseQi", double(c.fig68UseQi)}};
    for (const auto& [name, value] : written) EXPECT_EQ(d.Number(name), value) << name;
    EXPECT_EQ(d.report.reports, 1);
  }
}

TEST(Fig617Test, ParapetElevationFollowsTheBox) {
  DialogApp d;
  Fig617 dialog(d.app);
  EXPECT_FALSE(Field(dialog, "Text8")->isEnabled());
  dialog.findChild<QCheckBox*>("Check1")->setChecked(true);
  EXPECT_TRUE(Field(dialog, "Text8")->isEnabled());
  EXPECT_EQ(Field(dialog, "Text7")->text(), "60");  // a stored 0 shows the height
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
