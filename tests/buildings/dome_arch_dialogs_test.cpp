#include <gtest/gtest.h>

#include <QGroupBox>
#include <QLabel>
#include <QRadioButton>
#include <QSlider>
#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "DialogTesting.h"
#include "buildings/qt/Fig616.h"
#include "buildings/qt/Figure67.h"
#include "buildings/qt/Figure68.h"
#include "buildings/qt/Figure68comp.h"

namespace gustline {
namespace {

using testing::DialogApp;
using testing::ExpectRules;
using testing::Field;

constexpr const char* kAbove005 = "f / d must be greater than .05. ";
constexpr const char* kBelow05 = "f / d must be less than 0.50. ";
constexpr const char* kFOverD = "f / D must be between 0.2 and 0.5. ";
constexpr const char* kHdOverD = "hD / D must be between 0 and 0.5. ";

struct DomeCase {
  const char* f;
  const char* hD;
  const char* d;
  const char* figure67;  // the refusal of each dialog, nullptr where OK writes
  const char* fig616;
};

// Types the dome into the dialog and presses OK: a refusal keeps the dialog with its box
// and writes nothing.
template <typename Dialog>
void ExpectDomeOk(const DomeCase& c, const char* refusal) {
  DialogApp d;
  Dialog dialog(d.app);
  dialog.show();
  auto v = dialog.Values();
  v.rise = c.f;
  v.eaveHeight = c.hD;
  v.diameter = c.d;
  dialog.ShowValues(v);
  dialog.Command1_Click();
  EXPECT_EQ(dialog.isVisible(), refusal != nullptr);
  if (refusal == nullptr) {
    EXPECT_TRUE(d.prompt.messages.empty());
    EXPECT_EQ(d.Number("DomeF"), std::stod(c.f));
    EXPECT_EQ(d.report.reports, 1);
    return;
  }
  ASSERT_EQ(d.prompt.messages.size(), 1u);
  EXPECT_EQ(d.prompt.messages[0], (Message{"Error", refusal, PromptIcon::Stop}));
  EXPECT_EQ(d.Number("DomeF"), 20);
  EXPECT_FALSE(d.state.modifiedFlag);
}

TEST(DomeDialogsTest, OkRefusesADomeOutsideItsFigure) {
  const DomeCase cases[] = {
      {"4", "0", "80", nullptr, kFOverD},  // f/D 0.05, the lowest of Figure 6-7
      {"3.99", "0", "80", kAbove005, kFOverD},
      {"16", "0", "80", nullptr, nullptr},  // f/D 0.2 and hD/D 0, the lowest of Figure 6-16
      {"15.99", "0", "80", nullptr, kFOverD},
      {"40", "40", "80", nullptr, nullptr},  // both at 0.5
      {"40.01", "40", "80", kBelow05, kFOverD},
      {"20", "40.01", "80", nullptr, kHdOverD},
      {"20", "-0.01", "80", nullptr, kHdOverD},
      {"60", "60", "80", kBelow05, kFOverD},  // f/D is tested first
      {"0", "0", "0", kAbove005, kFOverD},    // no diameter
      {"20", "40", "", kBelow05, kFOverD},
  };
  for (const DomeCase& c : cases) {
    SCOPED_TRACE(std::string("f ") + c.f + ", hD " + c.hD + ", D " + c.d);
    ExpectDomeOk<Figure67>(c, c.figure67);
    ExpectDomeOk<Fig616>(c, c.fig616);
  }
}

using Cells = std::vector<std::pair<const char*, double>>;

// A dialog's values written at OK and the cells they go to; qi and its height in the pair
// named, or none.
struct SaveCase {
  const char* dialog;
  std::function<void(wb::Workbook&)> save;
  Cells written;
  const char* useQi;
  const char* z;
};

TEST(DomeArchValuesTest, OkWritesTheCellsAndQiFollowsTheEnclosure) {
  const SaveCase cases[] = {
      {"Figure67",
       [](wb::Workbook& p) {
         SaveFigure67(
             p, {.rise = "10", .eaveHeight = "30", .diameter = "60", .useQz = true, .z = "45"});
       },
       {{"DomeF", 10}, {"DomehD", 30}, {"DomeD", 60}},
       "Fig63UseQi",
       "Fig63Z"},
      {"Fig616",
       [](wb::Workbook& p) { SaveFig616(p, {.rise = "10", .eaveHeight = "30", .diameter = "60"}); },
       {{"DomeF", 10}, {"DomehD", 30}, {"DomeD", 60}, {"Fig63UseQi", 0}, {"Fig63Z", 0}},
       nullptr,
       nullptr},
      {"Figure68",
       [](wb::Workbook& p) {
         SaveFigure68(p, {.support = kRoofSpringingFromGround,
                          .riseToSpan = "0.3",
                          .leewardLB = "2.5",
                          .hL = "0.75",
                          .area = "500",
                          .useQz = true,
                          .z = "45"});
       },
       {{"Table_65", 1},
        {"Table65Ratio", 0.3},
        {"Figure68LB", 2.5},
        {"Figure63HL", 0.75},
        {"Figure63Area", 500},
        {"T65UseQi", 0},
        {"Figure63LB", 1}},
       "Fig63UseQi",
       "Fig63Z"},
      {"Figure68comp",
       [](wb::Workbook& p) {
         SaveFigure68comp(p, {.support = kRoofSpringingFromGround,
                              .riseToSpan = "0.35",
                              .zone1 = "10",
                              .zone2 = "20",
                              .zone3 = "30",
                              .angle = "12",
                              .useQz = true,
                              .z = "45"});
       },
       {{"Table_65", 1},
        {"T65Ratio", 0.35},
        {"Table65Ratio", 0.23},
        {"Figure65BZone1", 10},
        {"Figure65BZone2", 20},
        {"Figure65BZone3", 30},
        {"Figure65BAngle", 12},
        {"Fig63UseQi", 0}},
       "T65UseQi",
       "T65Z"},
  };
  // Partially enclosed keeps the user's z; other classes take qh at `Height`, 60 ft.
  for (const int table64 : {1, 0, 2}) {
    for (const SaveCase& c : cases) {
      SCOPED_TRACE(std::string(c.dialog) + ", enclosure " + std::to_string(table64));
      wb::Workbook project("WindData");
      project.ReadWorkbook(GUSTLINE_WINDDATA_PATH);
      wb::WriteNamedInt(project, "Table64", table64);
      c.save(project);
      for (const auto& [name, value] : c.written)
        EXPECT_DOUBLE_EQ(wb::ReadNamedNumber(project, name), value) << name;
      if (c.useQi == nullptr) continue;
      EXPECT_EQ(wb::ReadNamedNumber(project, c.useQi), table64 == 1 ? 1 : 0);
      EXPECT_EQ(wb::ReadNamedNumber(project, c.z), table64 == 1 ? 45 : 60);
    }
  }
}

TEST(ArchValuesTest, OpeningOutsidePartialEnclosureTakesQiAsQh) {
  for (const int table64 : {1, 0}) {
    SCOPED_TRACE(table64);
    wb::Workbook project("WindData");
    project.ReadWorkbook(GUSTLINE_WINDDATA_PATH);
    wb::WriteNamedInt(project, "Table64", table64);
    wb::WriteNamedInt(project, "T65UseQi", 1);
    const Figure68compValues v = LoadFigure68comp(project);
    EXPECT_EQ(v.useQz, table64 == 1);
    EXPECT_EQ(wb::ReadNamedNumber(project, "T65UseQi"), table64 == 1 ? 1 : 0);
    EXPECT_EQ(v.z, "60");  // a stored 0 shows the height
  }
}

// The frame of the dialog with this title.
QGroupBox* Frame(const QDialog& dialog, const QString& title) {
  for (QGroupBox* frame : dialog.findChildren<QGroupBox*>()) {
    if (frame->title() == title) return frame;
  }
  return nullptr;
}

TEST(DomeArchDialogsTest, NamesCaptionsFramesAndRules) {
  DialogApp d;
  wb::WriteNamedInt(d.Project(), "Table64", 0);
  Figure67 figure67(d.app);
  Fig616 fig616(d.app);
  Figure68 figure68(d.app);
  Figure68comp figure68comp(d.app);
  struct Shown {
    QDialog& dialog;
    const char* name;
    const char* caption;
    const char* qiOptions;  // the stem of the qi pair, nullptr for none
    const char* z;
  };
  const Shown shown[] = {
      {figure67, "Figure67", "External Pressure Coefficients, Cp, Figure 6-7", "Option1", "Text4"},
      {fig616, "Fig616", "Domed Roofs, Figure 6-16", nullptr, nullptr},
      {figure68, "Figure68", " External Pressure Coefficients for Arched Roofs, Cp, Figure 6-8",
       "Option2", "Text5"},
      {figure68comp, "Figure68comp", "Figure 6-8 Components and Cladding", "Option2", "Text5"},
  };
  for (const Shown& s : shown) {
    SCOPED_TRACE(s.name);
    EXPECT_EQ(s.dialog.objectName(), s.name);
    EXPECT_EQ(s.dialog.windowTitle(), s.caption);
    QGroupBox* qi = Frame(s.dialog, "Velocity Pressure, qi");
    EXPECT_EQ(qi != nullptr, s.qiOptions != nullptr);
    if (qi == nullptr) continue;
    // Only a partially enclosed building offers qi = qz.
    for (const char* control : {"_0", "_1"}) {
      auto* option = qi->findChild<QRadioButton*>(QString(s.qiOptions) + control);
      ASSERT_NE(option, nullptr) << control;
      EXPECT_FALSE(option->isEnabled());
    }
    ASSERT_NE(qi->findChild<QLineEdit*>(s.z), nullptr);
    EXPECT_FALSE(qi->findChild<QLineEdit*>(s.z)->isEnabled());
  }
  for (QDialog* arch : {static_cast<QDialog*>(&figure68), static_cast<QDialog*>(&figure68comp)}) {
    EXPECT_EQ(arch->findChild<QRadioButton*>("Option1_0")->text(), "Roof on elevated structure");
    EXPECT_EQ(arch->findChild<QRadioButton*>("Option1_1")->text(),
              "Roof springing from ground level");
  }
  QGroupBox* parallel = Frame(figure68, "Wind Directed Parallel to Axis of Arch");
  ASSERT_NE(parallel, nullptr);
  EXPECT_NE(parallel->findChild<QLineEdit*>("Text3"), nullptr);
  EXPECT_NE(parallel->findChild<QLineEdit*>("Text4"), nullptr);
  EXPECT_EQ(figure68.findChild<QLabel*>("Label2")->text(), "L/B for Leeward wall (ref. 6-6)");
  figure68comp.findChild<QSlider*>("Slider1")->setValue(30);
  EXPECT_EQ(Field(figure68comp, "Text6")->text(), "30.00");

  const char* const riseToSpan = "Valid values are numbers from 0.000 to 0.600";
  const char* const zoneArea = "Valid values are numbers from 1.000 to 1000.000";
  ExpectRules<Figure68>({{"Text1", "0.61", riseToSpan},
                         {"Text2", "1000.01", "Valid values are numbers from 0.000 to 1000.000"},
                         {"Text3", "-0.01", "Valid values are numbers from 0.000 to 1000.000"},
                         {"Text4", "0.99", "Valid values are numbers from 1.000 to 10000.000"},
                         {"Text5", "no rule", nullptr}});
  ExpectRules<Figure68comp>({{"Text1", "-0.01", riseToSpan},
                             {"Text4", "0.99", zoneArea},
                             {"Text2", "1000.01", zoneArea},
                             {"Text3", "0", zoneArea},
                             {"Text6", "45.01", "Valid values are numbers from 0.000 to 45.000"},
                             {"Text5", "no rule", nullptr}});
}

}  // namespace
}  // namespace gustline
