#include <gtest/gtest.h>

#include <QCheckBox>
#include <QListWidget>
#include <QRadioButton>
#include <QTabWidget>
#include <utility>
#include <vector>

#include "DialogTesting.h"
#include "ui/qt/frmWindProp.h"

namespace gustline {
namespace {

using testing::DialogApp;
using testing::ExpectRules;
using testing::Field;

TEST(WindPropertiesDialogTest, EveryTextBoxRefusesTextOutsideItsRule) {
  ExpectRules<frmWindProp>({{"HillX", "0.5", "Valid value must be greater or equal to 1"},
                            {"HillLh", "0", "Valid value must be greater or equal to 1"},
                            {"HillHeight", "0.9", "Valid value must be greater or equal to 1.0"},
                            {"Text3", "0.9", "Valid value must be greater or equal to 1.0"},
                            {"Text2", "0", "Valid value must be greater or equal to 1.0"},
                            {"Text1", "2000.5", "Valid values are numbers from 1.000 to 2000.000"},
                            {"Text5", "50.1", "Valid values are numbers from 0.000 to 50.000"},
                            {"Text4", "101", "Valid values are numbers from 0.000 to 100.000"},
                            {"Text6", "501", "Valid values are numbers from 0.000 to 500.000"},
                            {"Text7", "-1", "Valid values are numbers from 0.000 to 10000.000"},
                            {"TextAog", "no rule", nullptr},
                            {"TextVi", "no rule", nullptr}});
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
    wb::WriteNamedNumber(d.Project(), "B124", 1);
    frmWindProp form(d.app);
    form.show();
    Field(form, c.field)->setText(c.text);
    form.Command1_Click();
    EXPECT_DOUBLE_EQ(d.Number(c.cell), c.written) << c.field;
    EXPECT_EQ(d.Number("B124"), 0) << "the analytical procedure takes over";
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

struct FigureEntryCase {
  int structure;
  const char* height;
  int row;
  FigureDialog dialog;
  int figure;
};

TEST(WindPropertiesDialogTest, PropertiesOpensTheFigureDialogOfTheEntryWithItsFigure) {
  const FigureEntryCase cases[] = {
      {0, "60", 0, FigureDialog::Fig611, 3}, {0, "60", 1, FigureDialog::Fig611, 4},
      {0, "60", 2, FigureDialog::Fig611, 5}, {0, "60", 3, FigureDialog::Fig611, 6},
      {1, "80", 0, FigureDialog::Fig617, 7},
  };
  for (const FigureEntryCase& c : cases) {
    SCOPED_TRACE(c.figure);
    DialogApp d;
    wb::WriteNamedNumber(d.Project(), "System", 1);
    wb::WriteNamedNumber(d.Project(), "Structure", c.structure);
    frmWindProp form(d.app);
    std::vector<std::pair<FigureDialog, int>> opened;
    FigureDialogs dialogs;
    for (const FigureDialog dialog : {FigureDialog::Fig611, FigureDialog::Fig617}) {
      dialogs.figures[dialog] = [&opened, dialog](Application&, int figure, QWidget*) {
        opened.emplace_back(dialog, figure);
      };
    }
    form.SetFigureDialogs(dialogs);
    form.show();
    Field(form, "Text1")->setText(c.height);
    form.findChild<QListWidget*>("List1")->setCurrentRow(c.row);
    form.Command10_Click();
    ASSERT_EQ(opened.size(), 1u);
    EXPECT_EQ(opened[0].first, c.dialog);
    EXPECT_EQ(opened[0].second, c.figure);
  }
}

TEST(WindPropertiesDialogTest, TablePropertiesOpensTheTableDialogsByRow) {
  DialogApp d;
  wb::WriteNamedNumber(d.Project(), "System", 2);
  frmWindProp form(d.app);
  std::vector<TableDialog> opened;
  FigureDialogs dialogs;
  const std::vector<TableDialog> byRow = {TableDialog::Figure618,   TableDialog::Fig619,
                                          TableDialog::Figure620,   TableDialog::Figure619,
                                          TableDialog::Figure621,   TableDialog::Figure622,
                                          TableDialog::TableSpecial};
  for (const TableDialog dialog : byRow) {
    dialogs.tables[dialog] = [&opened, dialog](Application& app, QWidget*) {
      opened.push_back(dialog);
      wb::WriteNamedNumber(app.state.ProjectWorkbook(), "Table66RoofType", 4);
    };
  }
  form.SetFigureDialogs(dialogs);
  form.show();
  auto* list = form.findChild<QListWidget*>("List2");
  for (int row = 0; row < list->count(); ++row) {
    list->setCurrentRow(row);
    form.Command5_Click();
  }
  list->setCurrentRow(0);  // the first click of a double click
  emit list->itemDoubleClicked(list->item(0));
  std::vector<TableDialog> expected = byRow;
  expected.push_back(TableDialog::Figure618);
  EXPECT_EQ(opened, expected);
  // The roof type chosen there survives the OK of this dialog.
  form.Command1_Click();
  EXPECT_EQ(d.Number("Table66RoofType"), 4);
}

}  // namespace
}  // namespace gustline
