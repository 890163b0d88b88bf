#include <gtest/gtest.h>

#include <QCheckBox>
#include <QListWidget>
#include <QRadioButton>
#include <QTabWidget>

#include "DialogTesting.h"
#include "ui/frmWindProp.h"
#include "ui/frmWindPropScreens.h"
#include "ui/frmWindPropStatus.h"

namespace gustline {
namespace {

using testing::DialogApp;
using testing::Field;
using testing::RuleOf;

TEST(WindPropertiesTest, CategoryAndHurricaneBoxBothWays) {
  struct Case {
    int option;
    bool hurricane;
    int stored;
  };
  const Case cases[] = {{0, false, 0}, {0, true, 4}, {1, false, 1}, {3, false, 3}};
  for (const Case& c : cases) {
    EXPECT_EQ(CategoryValue(c.option, c.hurricane), c.stored);
    WindProperties values;
    SetCategory(values, c.stored);
    EXPECT_EQ(values.categoryOption, c.option);
    EXPECT_EQ(values.hurricane, c.hurricane);
  }
  // The box means nothing beside II, III or IV.
  EXPECT_EQ(CategoryValue(2, true), 2);
}

TEST(WindPropertiesTest, AirDensityAndConstantLabels) {
  struct Case {
    const char* meanSeaLevel;
    const char* density;
    const char* constant;
  };
  const Case cases[] = {{"0", "Air Density = 0.07650", "Constant    = 0.00256"},
                        {"1000", "Air Density = 0.07420", "Constant    = 0.00248"},
                        {"5000", "Air Density = 0.06580", "Constant    = 0.00220"}};
  for (const Case& c : cases) {
    EXPECT_EQ(AirDensityLabel(c.meanSeaLevel), c.density);
    EXPECT_EQ(ConstantLabel(c.meanSeaLevel), c.constant);
  }
}

TEST(WindPropertiesTest, PressureScreenWarningsAndTheFallOfTheThirdStructure) {
  const std::string lowRise =
      "Low-rise buildings (Fig. 6-10) should have \r\na mean roof height <= 60.0 ft.";
  struct Case {
    int system, structure;
    double height;
    const char* warning;
  };
  const Case cases[] = {
      {0, 0, 60.0, nullptr},
      {0, 0, 60.01, lowRise.c_str()},
      {1, 0, 61,
       "Enclosed or partially enclosed buildings (Fig. 6-11 Thru 6-15) \r\nshould have a "
       "mean roof height <= 60.0 ft."},
      {1, 1, 60,
       "Enclosed or partially enclosed buildings (Fig. 6-17)\r\nshould have a mean roof "
       "height > 60.0 ft."},
      {1, 1, 60.5, nullptr},
      {0, 1, 500, nullptr}};
  for (const Case& c : cases) {
    const PressureScreen screen = PressureScreenFor(c.system, c.structure, c.height);
    ASSERT_EQ(screen.warning.has_value(), c.warning != nullptr) << c.system << c.structure;
    if (c.warning) {
      EXPECT_EQ(screen.warning->text, c.warning);
      EXPECT_EQ(screen.warning->title, "Warning");
    }
  }
  const PressureScreen open = PressureScreenFor(2, 2, 60);
  EXPECT_EQ(open.structure, 1);
  EXPECT_FALSE(open.thirdStructureVisible);
  EXPECT_EQ(open.structureCaptions[1], "Flexible Structures");
  EXPECT_EQ(PressureScreenFor(1, 1, 80).equation, "p = q(GCp) - qi(GCpi)]");
}

TEST(WindPropertiesTest, FigureEntriesAndHeightRules) {
  EXPECT_EQ(FigureListIndex(1, 0, 4), 1);
  EXPECT_EQ(FigureListIndex(1, 0, 6), 3);
  EXPECT_EQ(FigureListIndex(1, 0, 2), -1);
  EXPECT_EQ(FigureListIndex(0, 1, 2), 0);  // low-rise to rigid: Figure 6-6
  EXPECT_EQ(FigureListIndex(0, 2, 9), 1);
  const auto items = ForceFactorScreenFor(1, 0).figureItems;
  const FigureChoice gabled = FigureChoiceOf(items[0]);
  EXPECT_EQ(gabled.dialog, FigureDialog::Fig611);
  const auto error = HeightRangeError(gabled.heightRule, 80);
  ASSERT_TRUE(error);
  EXPECT_EQ(error->title, "Height Range Error");
  EXPECT_EQ(error->text, "Mean roof height h must be\r\nless than or equal to 60.0 ft");
  EXPECT_FALSE(HeightRangeError(gabled.heightRule, 60));
  const FigureChoice tall = FigureChoiceOf(ForceFactorScreenFor(1, 1).figureItems[0]);
  EXPECT_EQ(HeightRangeError(tall.heightRule, 60)->text,
            "Mean roof height h must be\r\ngreater than 60.0 ft");
  EXPECT_EQ(FigureChoiceOf("Domed Roofs, Figure 6-7").figure, 9);
}

TEST(WindPropertiesDialogTest, EveryFieldCarriesItsRule) {
  DialogApp d;
  frmWindProp form(d.app);
  const std::pair<const char*, const char*> rules[] = {
      {"HillX", ">=1"},
      {"HillLh", ">=1"},
      {"HillHeight", ">=1.0"},
      {"Text3", ">=1.0"},
      {"Text2", ">=1.0"},
      {"Text1", ">=1.00,<=2000.00"},
      {"Text5", ">=0.0001,<=50.0"},
      {"Text4", ">=0,<=100.00"},
      {"Text6", ">=0.0,<=500.00"},
      {"Text7", ">=0.0,<=10000"},
      {"TextAog", ""},
      {"TextVi", ""},
  };
  for (const auto& [field, rule] : rules) EXPECT_EQ(RuleOf(form, field), rule) << field;
}

// The dialog shown on the default project, a field changed, and OK pressed.
struct OkCase {
  const char* field;
  const char* text;
  const char* cell;
  double written;
};

TEST(WindPropertiesDialogTest, OkWritesTheFieldsAndBuildsTheReport) {
  const OkCase cases[] = {{"Text6", "100", "WindSpeed", 100},
                          {"Text5", "2", "Damping", 0.02},
                          {"HillX", "250", "HillX", 250}};
  for (const OkCase& c : cases) {
    DialogApp d;
    frmWindProp form(d.app);
    form.show();
    Field(form, c.field)->setText(c.text);
    form.Command1_Click();
    EXPECT_DOUBLE_EQ(d.Number(c.cell), c.written) << c.field;
    EXPECT_TRUE(d.state.modifiedFlag);
    EXPECT_EQ(d.report.reports, 1);
    EXPECT_FALSE(form.isVisible());
  }
}

TEST(WindPropertiesDialogTest, StatusPanelsFollowTheFields) {
  DialogApp d;
  frmWindProp form(d.app);
  form.show();
  Field(form, "Text6")->setText("100");
  Field(form, "Text1")->setText("75");
  form.findChild<QRadioButton*>("Option4_2")->setChecked(true);
  form.findChild<QCheckBox*>("ChkHurricane")->setChecked(true);
  EXPECT_EQ(d.view.panels[2], " V = 100.00 mph");
  EXPECT_EQ(d.view.panels[3], " I = 0.77");
  EXPECT_EQ(d.view.panels[4], " Exposure = D");
  EXPECT_EQ(d.view.panels[5], " Height = 75.00 ft ");
}

TEST(WindPropertiesDialogTest, CancelAndBadInputWriteNothing) {
  struct Case {
    bool cancel;
    const char* windSpeed;
    std::size_t messages;
  };
  for (const Case c : {Case{true, "100", 0}, Case{false, "600", 1}, Case{false, "", 1}}) {
    DialogApp d;
    frmWindProp form(d.app);
    form.show();
    Field(form, "Text6")->setText(c.windSpeed);
    if (c.cancel) {
      form.reject();
    } else {
      form.Command1_Click();
    }
    EXPECT_EQ(d.Number("WindSpeed"), 90);
    EXPECT_EQ(d.report.reports, 0);
    EXPECT_FALSE(d.state.modifiedFlag);
    EXPECT_EQ(d.prompt.messages.size(), c.messages);
    EXPECT_EQ(form.isVisible(), !c.cancel);
  }
}

TEST(WindPropertiesDialogTest, LeavingFromTheTopographyTabResetsTheQiHeight) {
  for (const int tab : {1, 4}) {
    DialogApp d;
    wb::WriteNamedNumber(d.Project(), "Fig63UseQi", 1);
    wb::WriteNamedNumber(d.Project(), "Fig63Z", 30);
    frmWindProp form(d.app);
    form.TabSelect(tab);
    form.show();
    form.Command1_Click();
    EXPECT_EQ(d.Number("B144"), tab == 4 ? 0 : 1);
    EXPECT_EQ(d.Number("B145"), tab == 4 ? 60 : 30);
  }
}

TEST(WindPropertiesDialogTest, UserIntervalsDisableTheHeightButItsRuleStillHolds) {
  DialogApp d;
  wb::WriteNamedNumber(d.Project(), "Interval", 5);
  wb::WriteNamedNumber(d.Project(), "Height", 0.5);
  frmWindProp form(d.app);
  form.show();
  EXPECT_FALSE(Field(form, "Text1")->isEnabled());
  form.Command1_Click();
  ASSERT_EQ(d.prompt.messages.size(), 1u);
  EXPECT_EQ(d.prompt.messages[0].text, "Valid values are numbers from 1.000 to 2000.000");
  EXPECT_TRUE(form.isVisible());
}

TEST(WindPropertiesDialogTest, StoredHurricaneCategoryRoundTripsAndClearsWithTheBox) {
  DialogApp d;
  wb::WriteNamedNumber(d.Project(), "Category", 4);
  frmWindProp form(d.app);
  form.show();
  EXPECT_TRUE(form.findChild<QRadioButton*>("Option3_0")->isChecked());
  auto* box = form.findChild<QCheckBox*>("ChkHurricane");
  EXPECT_TRUE(box->isChecked());
  box->setChecked(false);
  form.Command1_Click();
  EXPECT_EQ(d.Number("Category"), 0);
}

TEST(WindPropertiesDialogTest, RiIsWrittenOnlyForPartiallyEnclosedBuildings) {
  for (const int table64 : {1, 2}) {
    DialogApp d;
    frmWindProp form(d.app);
    form.show();
    form.findChild<QRadioButton*>(QString("Option7_%1").arg(table64))->setChecked(true);
    form.findChild<QRadioButton*>("Option8_1")->setChecked(true);
    Field(form, "TextAog")->setText("100");
    Field(form, "TextVi")->setText("1000000");
    form.Command1_Click();
    EXPECT_EQ(d.Number("B148"), table64 == 1 ? 1 : 0);
    EXPECT_EQ(d.Number("B149"), table64 == 1 ? 100 : 0);
  }
}

TEST(WindPropertiesDialogTest, OpenStructuresLoseTheThirdStructureAndTakeTheTableList) {
  DialogApp d;
  wb::WriteNamedNumber(d.Project(), "System", 2);
  wb::WriteNamedNumber(d.Project(), "Structure", 2);
  frmWindProp form(d.app);
  form.show();
  EXPECT_TRUE(form.findChild<QRadioButton*>("Option2_1")->isChecked());
  EXPECT_FALSE(form.findChild<QRadioButton*>("Option2_2")->isVisible());
  EXPECT_FALSE(form.findChild<QListWidget*>("List1")->isEnabled());
  EXPECT_TRUE(form.findChild<QListWidget*>("List2")->isEnabled());
  form.Command1_Click();
  EXPECT_EQ(d.Number("Structure"), 1);
  EXPECT_EQ(d.Number("GustType"), 2);
}

TEST(WindPropertiesDialogTest, TallLowRiseBuildingCannotOpenFigure610) {
  DialogApp d;
  frmWindProp form(d.app);
  form.show();
  form.TabSelect(5);
  Field(form, "Text1")->setText("80");
  form.findChild<QListWidget*>("List1")->setCurrentRow(0);
  form.Command10_Click();
  ASSERT_EQ(d.prompt.messages.size(), 1u);
  EXPECT_EQ(d.prompt.messages[0].title, "Height Range Error");
  EXPECT_EQ(form.findChild<QTabWidget*>("SSTab1")->currentIndex(), 5);
}

}  // namespace
}  // namespace gustline
