// A field table on a form: each kind of control shown from its member and read back, the
// rules checked in the table's order, and a table that does not fit its form refused.
#include <gtest/gtest.h>

#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QRadioButton>
#include <QSlider>
#include <stdexcept>

#include "DialogTesting.h"
#include "ui/rules/qt/FormFields.h"

namespace gustline::rules {
namespace {

struct Sample {
  std::string angle;
  std::string count;
  bool ticked = false;
  int exposure = 1;  // Option1_0 stands for 1
  bool second = false;
  int hill = 0;
  int item = 0;
  int row = 0;
  int position = 0;
};

// Text2 is checked ahead of Text1, as the table lists them.
constexpr FormField<Sample> kSampleFields[] = {
    {.control = "Text2", .member = &Sample::count, .rule = ">=1"},
    {.control = "Text1", .member = &Sample::angle, .rule = ">=0,<=90"},
    {.control = "Check1", .member = &Sample::ticked},
    {.control = "Option1", .member = &Sample::exposure, .firstOption = 1},
    {.control = "Option2", .member = &Sample::second},
    {.control = "Option3", .member = &Sample::hill},
    {.control = "Combo1", .member = &Sample::item},
    {.control = "List1", .member = &Sample::row},
    {.control = "Slider1", .member = &Sample::position},
};

// One control of each kind; the option arrays stand in frames of their own, Option1 in a
// button group as the wind properties dialog has them, the others exclusive by their frame.
// The application comes before the form, which a base made first ensures.
struct WithApplication {
  WithApplication() { testing::EnsureApplication(); }
};

struct SampleForm : WithApplication {
  SampleForm() {
    form.setObjectName("Sample");
    Named<QLineEdit>(&form, "Text1");
    Named<QLineEdit>(&form, "Text2");
    Named<QCheckBox>(&form, "Check1");
    struct OptionArray {
      const char* stem;
      int count;
      QButtonGroup* group;
    };
    for (const OptionArray& array :
         {OptionArray{"Option1", 3, new QButtonGroup(&form)}, OptionArray{"Option2", 2, nullptr},
          OptionArray{"Option3", 3, nullptr}}) {
      auto* frame = Named<QWidget>(&form, QString(array.stem) + "Frame");
      for (int i = 0; i < array.count; ++i) {
        auto* option = Named<QRadioButton>(frame, QString("%1_%2").arg(array.stem).arg(i));
        if (array.group) array.group->addButton(option, i);
      }
    }
    Named<QComboBox>(&form, "Combo1")->addItems({"a", "b", "c"});
    Named<QListWidget>(&form, "List1")->addItems({"a", "b", "c"});
    Named<QSlider>(&form, "Slider1")->setRange(0, 90);
  }
  template <typename Widget>
  static Widget* Named(QWidget* parent, const QString& name) {
    auto* widget = new Widget(parent);
    widget->setObjectName(name);
    return widget;
  }
  bool Checked(const char* name) { return form.findChild<QRadioButton*>(name)->isChecked(); }

  QWidget form;
};

TEST(FormFieldsTest, EachKindOfControlShowsItsMemberAndReadsItBack) {
  const Sample cases[] = {
      {"12.5", "3", true, 3, true, 2, 1, 2, 45},
      {"", "x", false, 1, false, 0, 2, 0, 90},
  };
  for (const Sample& shown : cases) {
    SampleForm f;
    ShowFields(f.form, kSampleFields, shown);
    EXPECT_TRUE(f.Checked(shown.exposure == 3 ? "Option1_2" : "Option1_0"));
    EXPECT_EQ(f.Checked("Option2_1"), shown.second);
    Sample read;
    ReadFields(f.form, kSampleFields, read);
    SCOPED_TRACE(shown.angle);
    EXPECT_EQ(read.angle, shown.angle);
    EXPECT_EQ(read.count, shown.count);
    EXPECT_EQ(read.ticked, shown.ticked);
    EXPECT_EQ(read.exposure, shown.exposure);
    EXPECT_EQ(read.second, shown.second);
    EXPECT_EQ(read.hill, shown.hill);
    EXPECT_EQ(read.item, shown.item);
    EXPECT_EQ(read.row, shown.row);
    EXPECT_EQ(read.position, shown.position);
  }
}

TEST(FormFieldsTest, AnIndexThatNamesNoOptionSetsNoneAndIsKeptOnRead) {
  SampleForm f;
  Sample shown;
  shown.exposure = 2;
  shown.hill = 1;
  ShowFields(f.form, kSampleFields, shown);
  shown.exposure = 0;  // a stored exposure A, which has no option
  shown.hill = 7;
  ShowFields(f.form, kSampleFields, shown);
  for (const char* option : {"Option1_0", "Option1_1", "Option1_2", "Option3_0", "Option3_1"})
    EXPECT_FALSE(f.Checked(option)) << option;
  Sample read;
  read.exposure = 0;
  read.hill = 7;
  ReadFields(f.form, kSampleFields, read);
  EXPECT_EQ(read.exposure, 0);
  EXPECT_EQ(read.hill, 7);
  // The options stay exclusive afterwards.
  f.form.findChild<QRadioButton*>("Option3_0")->setChecked(true);
  f.form.findChild<QRadioButton*>("Option3_2")->setChecked(true);
  EXPECT_FALSE(f.Checked("Option3_0"));
}

TEST(FormFieldsTest, RulesAreCheckedInTheTablesOrder) {
  struct Case {
    const char* angle;
    const char* count;
    const char* message;
  };
  const Case cases[] = {
      {"45", "2", nullptr},
      {"95", "0", "Valid value must be greater or equal to 1"},
      {"95", "2", "Valid values are numbers from 0.000 to 90.000"},
  };
  for (const Case& c : cases) {
    SampleForm f;
    f.form.findChild<QLineEdit*>("Text1")->setText(c.angle);
    f.form.findChild<QLineEdit*>("Text2")->setText(c.count);
    ScriptedPrompt prompt;
    EXPECT_EQ(CheckFields(prompt, f.form, kSampleFields), c.message == nullptr);
    ASSERT_EQ(prompt.messages.size(), c.message ? 1u : 0u);
    if (c.message) {
      EXPECT_EQ(prompt.messages[0].text, c.message);
    }
  }
}

constexpr FormField<Sample> kMissingControl[] = {{.control = "Text9", .member = &Sample::angle}};
constexpr FormField<Sample> kTextOnATick[] = {{.control = "Check1", .member = &Sample::angle}};
constexpr FormField<Sample> kTickOnAText[] = {{.control = "Text1", .member = &Sample::ticked}};
constexpr FormField<Sample> kIndexOnAText[] = {{.control = "Text1", .member = &Sample::row}};
constexpr FormField<Sample> kRuleOnATick[] = {
    {.control = "Check1", .member = &Sample::ticked, .rule = ">=1"}};

TEST(FormFieldsTest, ATableThatDoesNotFitTheFormIsRefused) {
  SampleForm f;
  Sample v;
  ScriptedPrompt prompt;
  EXPECT_THROW(ShowFields(f.form, kMissingControl, v), std::logic_error);
  EXPECT_THROW(ReadFields(f.form, kMissingControl, v), std::logic_error);
  EXPECT_THROW(ReadFields(f.form, kTextOnATick, v), std::logic_error);
  EXPECT_THROW(ShowFields(f.form, kTickOnAText, v), std::logic_error);
  EXPECT_THROW(ReadFields(f.form, kIndexOnAText, v), std::logic_error);
  EXPECT_THROW(CheckFields(prompt, f.form, kRuleOnATick), std::logic_error);
}

}  // namespace
}  // namespace gustline::rules
