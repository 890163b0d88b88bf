#include <gtest/gtest.h>

#include <QCheckBox>
#include <QPushButton>
#include <QRadioButton>
#include <QSlider>
#include <string>
#include <utility>

#include "DialogTesting.h"
#include "structures/qt/Fig619.h"
#include "structures/qt/Figure618.h"

namespace gustline {
namespace {

using testing::DialogApp;
using testing::Field;

template <typename Dialog>
QRadioButton* RoofOption(Dialog& dialog, int roofType) {
  return dialog.template findChild<QRadioButton*>(QString("RoofTypeOption_%1").arg(roofType - 1));
}

constexpr const char* kPitchedOrTroughed =
    "Roof angle less than 7.5 degrees is not valid for pitched or troughed roofs.  Use the "
    "Monoslope option in this case.";
constexpr const char* kNote5Angle = "Roof angle must be less than 5 degrees for Note 5 to apply.";
constexpr const char* kNote5Ratio =
    "Structure height \\ Structure width out of range for Note 5 to apply.  Valid range is 0.05 "
    "to 0.25";

// A roof type chosen, an angle typed, Note 5 ticked or not, over a structure of the given
// height (its width is 100 ft), and OK pressed: the box that refuses it, or nullptr.
struct OkCase {
  int roofType;
  const char* angle;
  bool note5;
  double height;
  const char* message;
};

TEST(Figure618Test, OkChecksTheRuleThenTheRoofTypeThenNote5) {
  const OkCase cases[] = {
      {3, "-1", false, 60, "Valid values are numbers from 0.000 to 45.000"},  // rule first
      {2, "7.49", false, 60, kPitchedOrTroughed},
      {3, "0", false, 60, kPitchedOrTroughed},
      {2, "7.5", false, 60, nullptr},
      {1, "0", false, 60, nullptr},
      {4, "5", true, 10, kNote5Angle},
      {4, "6", true, 60, kNote5Angle},  // the angle before the ratio
      {4, "4.99", true, 5, nullptr},
      {4, "4", true, 25, nullptr},
      {4, "4", true, 4.9, kNote5Ratio},
      {4, "4", true, 25.1, kNote5Ratio},
      {4, "30", false, 60, nullptr},
      {1, "30", true, 60, nullptr},  // the tick stays, greyed, and is not checked
  };
  for (const OkCase& c : cases) {
    SCOPED_TRACE(std::to_string(c.roofType) + " at " + c.angle +
                 " deg, h = " + std::to_string(c.height));
    DialogApp d;
    wb::WriteNamedNumber(d.Project(), "Height", c.height);
    Figure618 dialog(d.app);
    dialog.show();
    RoofOption(dialog, 4)->click();
    dialog.findChild<QCheckBox*>("Note5CheckBox")->setChecked(c.note5);
    RoofOption(dialog, c.roofType)->click();
    Field(dialog, "RoofAngleEditBox")->setText(c.angle);
    dialog.OKButton_Click();
    EXPECT_EQ(dialog.isVisible(), c.message != nullptr);
    if (c.message != nullptr) {
      // The rule's box is a stop, the dialog's own are warnings.
      const Message expected = c.message[0] == 'V'
                                   ? Message{"     Range Error    ", c.message, PromptIcon::Stop}
                                   : Message{"Error", c.message, PromptIcon::Exclamation};
      ASSERT_EQ(d.prompt.messages.size(), 1u);
      EXPECT_EQ(d.prompt.messages[0], expected);
      EXPECT_EQ(d.Number("Table66Angle"), 10);
      EXPECT_EQ(d.Number("Table66RoofType"), 1);
      EXPECT_EQ(d.Number("Note5Applies"), 0);
      EXPECT_EQ(d.report.reports, 0);
      continue;
    }
    EXPECT_TRUE(d.prompt.messages.empty());
    EXPECT_EQ(d.Number("Table66Angle"), std::stod(c.angle));
    EXPECT_EQ(d.Number("Table66RoofType"), c.roofType);
    EXPECT_EQ(d.Number("Note5Applies"), c.note5 ? 1 : 0);
    EXPECT_EQ(d.report.reports, 1);
  }
}

TEST(Figure618Test, OpensOnTheCellsAndOffersNote5ForTheFreeRoofOnly) {
  DialogApp d;
  wb::WriteNamedNumber(d.Project(), "Table66Angle", 3.5);
  wb::WriteNamedNumber(d.Project(), "Table66RoofType", 4);
  wb::WriteNamedNumber(d.Project(), "Note5Applies", 1);
  Figure618 dialog(d.app);
  auto* note5 = dialog.findChild<QCheckBox*>("Note5CheckBox");
  auto* slider = dialog.findChild<QSlider*>("RoofAngleSlider");
  EXPECT_EQ(Field(dialog, "RoofAngleEditBox")->text(), "3.50");
  EXPECT_EQ(slider->value(), 3);
  EXPECT_TRUE(RoofOption(dialog, 4)->isChecked());
  EXPECT_TRUE(note5->isEnabled());
  EXPECT_TRUE(note5->isChecked());
  for (const int roofType : {1, 2, 3, 4}) {
    RoofOption(dialog, roofType)->click();
    EXPECT_EQ(note5->isEnabled(), roofType == 4) << roofType;
    EXPECT_TRUE(note5->isChecked());
  }
  // The slider takes the whole part of the box and leaves the box as typed.
  Field(dialog, "RoofAngleEditBox")->setText("17.9");
  EXPECT_EQ(slider->value(), 17);
  EXPECT_EQ(Field(dialog, "RoofAngleEditBox")->text(), "17.9");
  slider->setValue(30);
  EXPECT_EQ(Field(dialog, "RoofAngleEditBox")->text(), "30.00");
}

TEST(Fig619Test, OpensOnTheCellsAndOkWritesThemWithoutCheckingTheirRules) {
  DialogApp d;
  wb::WriteNamedNumber(d.Project(), "Table66RoofType", 3);
  wb::WriteNamedNumber(d.Project(), "Dimension_a", 12.5);
  wb::WriteNamedNumber(d.Project(), "Zone3Area", 1234.567);
  Fig619 dialog(d.app);
  dialog.show();
  EXPECT_TRUE(d.prompt.messages.empty());
  EXPECT_TRUE(RoofOption(dialog, 3)->isChecked());
  EXPECT_EQ(Field(dialog, "RoofAngleEditBox")->text(), "10.00");
  EXPECT_EQ(dialog.findChild<QSlider*>("RoofAngleSlider")->value(), 10);
  EXPECT_EQ(Field(dialog, "Dimension_a_EditBox")->text(), "12.50");
  EXPECT_EQ(Field(dialog, "Zone3AreaEditBox")->text(), "1234.57");
  RoofOption(dialog, 2)->click();
  const std::pair<const char*, const char*> typed[] = {{"RoofAngleEditBox", "50"},
                                                       {"Dimension_a_EditBox", "-1"},
                                                       {"Zone1AreaEditBox", "0"},
                                                       {"Zone2AreaEditBox", "20"},
                                                       {"Zone3AreaEditBox", "30"}};
  for (const auto& [box, text] : typed) Field(dialog, box)->setText(text);
  dialog.OKButton_Click();
  EXPECT_TRUE(d.prompt.messages.empty());
  EXPECT_FALSE(dialog.isVisible());
  const std::pair<const char*, double> written[] = {{"Table66Angle", 50}, {"Table66RoofType", 2},
                                                    {"Dimension_a", -1},  {"Zone1Area", 0},
                                                    {"Zone2Area", 20},    {"Zone3Area", 30}};
  for (const auto& [cell, value] : written) EXPECT_EQ(d.Number(cell), value) << cell;
  EXPECT_EQ(d.report.reports, 1);
}

TEST(Fig619Test, ARoofTypeWithoutAButtonIsInvalidAndKept) {
  for (const int roofType : {0, 4}) {
    SCOPED_TRACE(roofType);
    DialogApp d;
    wb::WriteNamedNumber(d.Project(), "Table66RoofType", roofType);
    Fig619 dialog(d.app);
    ASSERT_EQ(d.prompt.messages.size(), 1u);
    EXPECT_EQ(d.prompt.messages[0], (Message{"Error", "Invalid roof type value!"}));
    for (int option = 1; option <= 3; ++option)
      EXPECT_FALSE(RoofOption(dialog, option)->isChecked());
    dialog.OKButton_Click();
    EXPECT_EQ(d.Number("Table66RoofType"), roofType);
  }
}

TEST(FreeRoofDialogsTest, CancelLeavesTheCellsAsTheyWere) {
  for (const bool mainSystem : {true, false}) {
    SCOPED_TRACE(mainSystem ? "Figure618" : "Fig619");
    DialogApp d;
    if (mainSystem) {
      Figure618 dialog(d.app);
      dialog.show();
      RoofOption(dialog, 4)->click();
      dialog.findChild<QCheckBox*>("Note5CheckBox")->setChecked(true);
      Field(dialog, "RoofAngleEditBox")->setText("2");
      dialog.findChild<QPushButton*>("CancelButton")->click();
    } else {
      Fig619 dialog(d.app);
      dialog.show();
      RoofOption(dialog, 3)->click();
      Field(dialog, "RoofAngleEditBox")->setText("20");
      Field(dialog, "Dimension_a_EditBox")->setText("5");
      Field(dialog, "Zone2AreaEditBox")->setText("40");
      dialog.findChild<QPushButton*>("CancelButton")->click();
    }
    const std::pair<const char*, double> kept[] = {{"Table66Angle", 10},
                                                   {"Table66RoofType", 1},
                                                   {"Note5Applies", 0},
                                                   {"Dimension_a", 10},
                                                   {"Zone2Area", 10}};
    for (const auto& [cell, value] : kept) EXPECT_EQ(d.Number(cell), value) << cell;
    EXPECT_FALSE(d.state.modifiedFlag);
    EXPECT_EQ(d.report.reports, 0);
  }
}

}  // namespace
}  // namespace gustline
