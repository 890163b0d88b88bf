#include <gtest/gtest.h>

#include "ui/frmWindPropScreens.h"
#include "ui/frmWindPropStatus.h"
#include "ui/frmWindPropValues.h"

namespace gustline {
namespace {

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
  const FigureChoice gabled = FigureChoiceOf(items[0], 1);
  EXPECT_EQ(gabled.dialog, FigureDialog::Fig611);
  const auto error = HeightRangeError(gabled.heightRule, 80);
  ASSERT_TRUE(error);
  EXPECT_EQ(error->title, "Height Range Error");
  EXPECT_EQ(error->text, "Mean roof height h must be\r\nless than or equal to 60.0 ft");
  EXPECT_FALSE(HeightRangeError(gabled.heightRule, 60));
  const FigureChoice tall = FigureChoiceOf(ForceFactorScreenFor(1, 1).figureItems[0], 1);
  EXPECT_EQ(HeightRangeError(tall.heightRule, 60)->text,
            "Mean roof height h must be\r\ngreater than 60.0 ft");
  EXPECT_EQ(FigureChoiceOf("Domed Roofs, Figure 6-7", 0).figure, 9);
  // the arch entry opens the dialog of the system chosen in the form, not the saved one
  const std::string arches = ForceFactorScreenFor(1, 2).figureItems[0];
  EXPECT_EQ(FigureChoiceOf(arches, 1).dialog, FigureDialog::Figure68comp);
  EXPECT_EQ(FigureChoiceOf(arches, 0).dialog, FigureDialog::Figure68);
}

}  // namespace
}  // namespace gustline
