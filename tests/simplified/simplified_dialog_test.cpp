// The simplified procedure's dialog: what it reads on opening, what leaving it writes, the
// refusals of OK, and the areas dialog.
#include <gtest/gtest.h>

#include <QCheckBox>
#include <QPushButton>
#include <QRadioButton>
#include <QSlider>
#include <QTimer>

#include "DialogTesting.h"
#include "simplified/SimplifiedValues.h"
#include "simplified/WindAreasValues.h"
#include "simplified/qt/WindAreasFrm.h"
#include "simplified/qt/frmSimplified.h"

namespace gustline {
namespace {

using testing::DialogApp;
using testing::ExpectRules;
using testing::Field;

void Set(DialogApp& d, const char* name, double value) {
  wb::WriteNamedNumber(d.Project(), name, value);
}

struct OpeningCase {
  const char* what;
  double system, category, exposure;
  int shownSystem, categoryOption;
  bool hurricane;
  int shownExposure;
};

TEST(SimplifiedValuesTest, OpeningReadsWhatTheProcedureOffers) {
  const OpeningCase cases[] = {
      {"default", 0, 0, 2, 0, 0, false, 2},
      {"an open structure is read as components", 2, 2, 3, 1, 2, false, 3},
      {"category I in a hurricane region, exposure A read as B", 1, 4, 0, 1, 0, true, 1},
  };
  for (const auto& c : cases) {
    DialogApp d;
    Set(d, "System", c.system);
    Set(d, "Category", c.category);
    Set(d, "Exposure", c.exposure);
    const SimplifiedValues v = LoadSimplified(d.Project());
    EXPECT_EQ(v.system, c.shownSystem) << c.what;
    EXPECT_EQ(v.categoryOption, c.categoryOption) << c.what;
    EXPECT_EQ(v.hurricane, c.hurricane) << c.what;
    EXPECT_EQ(v.exposure, c.shownExposure) << c.what;
    EXPECT_EQ(v.roofAngle, "25.00") << c.what;
    EXPECT_EQ(v.windSpeed, "90.00") << c.what;
  }
}

TEST(SimplifiedValuesTest, LeavingWritesTheInputsAndTheSwitch) {
  struct Case {
    int option;
    bool hurricane;
    double category;
  };
  // The hurricane box counts for category I only.
  for (const Case c : {Case{1, true, 1}, Case{0, false, 0}, Case{0, true, 4}, Case{3, true, 3}}) {
    DialogApp d;
    Set(d, "Red_Fact", 5);
    SaveSimplified(d.Project(), {.system = 1,
                                 .categoryOption = c.option,
                                 .hurricane = c.hurricane,
                                 .exposure = 3,
                                 .windSpeed = "120",
                                 .roofAngle = "12.5",
                                 .height = "40"});
    EXPECT_EQ(d.Number("Category"), c.category) << c.option << c.hurricane;
    const std::pair<const char*, double> cells[] = {{"System", 1},
                                                    {"WindSpeed", 120},
                                                    {"Red_Fact", 0},
                                                    {"Trib_Area", 0},
                                                    {"SimplifiedAngle", 12.5},
                                                    {"Exposure", 3},
                                                    {"B124", 1},
                                                    {"Height", 40}};
    for (const auto& [cell, value] : cells) EXPECT_EQ(d.Number(cell), value) << cell;
  }
}

TEST(SimplifiedValuesTest, OkRefusesATallBuildingAndAMissingArea) {
  struct Case {
    const char* height;
    double zone4Area;
    const char* message;
  };
  const Case cases[] = {
      {"60", 10, nullptr},
      {"60.01", 10, "Building height must be less than or equal to 60"},
      {"", 10, nullptr},
      // Though the main wind-force system does not use the areas.
      {"30", 0, "You must enter effective wind areas for each zone"},
  };
  for (const auto& c : cases) {
    DialogApp d;
    Set(d, "Zone4Area", c.zone4Area);
    SimplifiedValues v;
    v.height = c.height;
    const auto error = SimplifiedOkError(d.Project(), v);
    ASSERT_EQ(error.has_value(), c.message != nullptr) << c.height;
    if (error) {
      EXPECT_EQ(error->text, c.message);
    }
  }
}

TEST(SimplifiedDialogTest, TextBoxesRefuseTextOutsideTheirRules) {
  ExpectRules<frmSimplified>({{"Text6", "45.5", "Valid values are numbers from 0.000 to 45.000"},
                              {"Text1", "84", "Valid values are numbers from 85.000 to 170.000"},
                              {"Text1", "171", "Valid values are numbers from 85.000 to 170.000"},
                              {"Text2", "60", nullptr}});
}

TEST(SimplifiedDialogTest, OkWritesTheSwitchAndBuildsTheReport) {
  DialogApp d;
  frmSimplified form(d.app);
  form.show();
  form.findChild<QRadioButton*>("Option1_1")->click();
  EXPECT_FALSE(form.findChild<QPushButton*>("Command4")->isHidden());
  Field(form, "Text1")->setText("100");
  form.findChild<QSlider*>("Slider1")->setValue(30);
  EXPECT_EQ(Field(form, "Text6")->text(), "30.00");
  form.Command1_Click();
  EXPECT_FALSE(form.isVisible());
  EXPECT_EQ(d.Number("B124"), 1);
  EXPECT_EQ(d.Number("System"), 1);
  EXPECT_EQ(d.Number("WindSpeed"), 100);
  EXPECT_EQ(d.Number("SimplifiedAngle"), 30);
  EXPECT_TRUE(d.state.modifiedFlag);
  EXPECT_EQ(d.report.reports, 1);
  EXPECT_EQ(d.view.panels[2], " V = 100.00 mph");
}

TEST(SimplifiedDialogTest, CancelKeepsWhatWasTypedUntilTheNextOk) {
  DialogApp d;
  d.state.modifiedFlag = true;
  frmSimplified form(d.app);
  form.show();
  Field(form, "Text2")->setText("45");
  form.reject();
  EXPECT_FALSE(d.state.modifiedFlag);
  EXPECT_EQ(d.view.panels[5], " Height = 45.00 ft ");
  EXPECT_EQ(d.Number("Height"), 60);
  EXPECT_EQ(d.report.reports, 0);

  // Opened again, the dialog shows the cancelled text, not the cell; Topography then
  // writes nothing either, while the dialog stays cancelled.
  bool topographyShown = false;
  form.SetTopography([&](QWidget*) { topographyShown = true; });
  QTimer::singleShot(0, &form, [&] {
    EXPECT_EQ(Field(form, "Text2")->text(), "45");
    form.Command3_Click();
    form.Command1_Click();
  });
  QTimer::singleShot(5000, &form, [&] { form.done(QDialog::Rejected); });
  form.Exec();
  EXPECT_TRUE(topographyShown);
  EXPECT_EQ(d.Number("Height"), 45);
  EXPECT_EQ(d.report.reports, 1);
}

TEST(SimplifiedDialogTest, AnotherProjectIsReadAfterACancel) {
  DialogApp d;
  d.state.currentFileName = "PROJECT1.GLN";
  frmSimplified form(d.app);
  form.show();
  Field(form, "Text2")->setText("45");
  form.reject();
  d.state.currentFileName = "PROJECT2.GLN";
  form.show();
  EXPECT_EQ(Field(form, "Text2")->text(), "60");
}

TEST(SimplifiedDialogTest, TopographyWritesTheInputsButLeavesTheReportToTheDialog) {
  DialogApp d;
  frmSimplified form(d.app);
  form.show();
  Field(form, "Text2")->setText("30");
  form.SetTopography([&](QWidget*) {
    // The wind properties dialog reads the cells the simplified one wrote, and writes its
    // own on leaving: the switch goes off.
    EXPECT_EQ(d.Number("Height"), 30);
    EXPECT_EQ(d.Number("B124"), 1);
    Set(d, "B124", 0);
    Set(d, "Exposure", 3);
  });
  form.Command3_Click();
  EXPECT_EQ(d.report.reports, 0);
  EXPECT_TRUE(form.findChild<QRadioButton*>("Option4_2")->isChecked());
  form.Command1_Click();
  EXPECT_EQ(d.Number("B124"), 1);
  EXPECT_EQ(d.Number("Exposure"), 3);
  EXPECT_EQ(d.report.reports, 1);
}

TEST(WindAreasTest, AZoneWithoutAreaIsOfferedTenAndOkWritesAll) {
  DialogApp d;
  Set(d, "Zone2Area", 0);
  Set(d, "Zone5Area", 250);
  WindAreasFrm form(d.app);
  EXPECT_EQ(form.Values().zone2, "10");
  EXPECT_EQ(form.Values().zone5, "250");
  form.show();
  Field(form, "Text4")->setText("501");
  form.Command1_Click();
  EXPECT_TRUE(form.isVisible());
  EXPECT_EQ(d.prompt.messages.back().text, "Valid values are numbers from 10.000 to 500.000");
  Field(form, "Text4")->setText("500");
  Field(form, "Text3")->setText("101");
  form.Command1_Click();
  EXPECT_TRUE(form.isVisible());
  Field(form, "Text3")->setText("100");
  form.Command1_Click();
  EXPECT_TRUE(form.Confirmed());
  EXPECT_EQ(d.Number("Zone2Area"), 10);
  EXPECT_EQ(d.Number("Zone3Area"), 100);
  EXPECT_EQ(d.Number("Zone4Area"), 500);
}

}  // namespace
}  // namespace gustline
