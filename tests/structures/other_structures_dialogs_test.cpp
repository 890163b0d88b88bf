#include <gtest/gtest.h>

#include <QCheckBox>
#include <QGroupBox>
#include <QPushButton>
#include <QRadioButton>
#include <functional>
#include <string>

#include "DialogTesting.h"
#include "structures/qt/Figure619.h"
#include "structures/qt/Figure620.h"
#include "structures/qt/Figure621.h"
#include "structures/qt/Figure622.h"
#include "structures/qt/TableSpecial.h"
#include "ui/grid/qt/SheetGrid.h"

namespace gustline {
namespace {

using testing::DialogApp;
using testing::ExpectRules;
using testing::Field;

constexpr const char* kEmptyCell = "  Empty cells are not allowed.  ";
constexpr const char* kOutOfRange = "  Value in cell not with in range.  ";
constexpr const char* kSignTooTall =
    "Value too small for height to top - it must be at least as large as Vertical dimension";

// The grid of a dialog and what the user types into one of its cells.
template <typename Dialog>
grid::SheetGrid* Grid(Dialog& dialog, const char* name) {
  return dialog.template findChild<grid::SheetGrid*>(name);
}

bool Type(grid::SheetGrid& grid, int row, int col, const char* text) {
  return grid.model()->setData(grid.model()->index(row - 1, col - 1), QString(text));
}

// The three dialogs with a grid of values by height interval, over a project of seven
// intervals (60 ft by the standard heights, highest first).
struct GridDialog {
  const char* name;
  const char* grid;
  std::function<void(DialogApp&, const std::function<void(QDialog&)>&)> open;
};

template <typename Dialog>
GridDialog Open(const char* name, const char* grid) {
  return {name, grid, [](DialogApp& d, const std::function<void(QDialog&)>& use) {
            Dialog dialog(d.app);
            dialog.show();
            use(dialog);
          }};
}

void PressOk(QDialog& dialog) {
  dialog.findChild<QPushButton*>("Command1")->click();
}

TEST(IntervalGridDialogsTest, OkRefusesABadCellAndOpensItForTyping) {
  struct Case {
    GridDialog dialog;
    int row;
    int col;
    const char* typed;
    const char* message;
  };
  const Case cases[] = {
      {Open<Figure619>("Figure619", "F1Chimney"), 3, 3, "", kEmptyCell},
      {Open<Figure619>("Figure619", "F1Chimney"), 7, 3, "0", kOutOfRange},
      {Open<Figure619>("Figure619", "F1Chimney"), 2, 3, "abc", kOutOfRange},
      {Open<Figure622>("Figure622", "F1Tower"), 5, 3, "", kEmptyCell},
      {Open<Figure622>("Figure622", "F1Tower"), 5, 3, "0", nullptr},  // no range here
      {Open<TableSpecial>("TableSpecial", "F1Special"), 4, 4, "", kEmptyCell},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(std::string(c.dialog.name) + " R" + std::to_string(c.row) + "C" +
                 std::to_string(c.col) + " '" + c.typed + "'");
    DialogApp d;
    c.dialog.open(d, [&](QDialog& dialog) {
      grid::SheetGrid& grid = *Grid(dialog, c.dialog.grid);
      ASSERT_TRUE(Type(grid, c.row, c.col, c.typed));
      PressOk(dialog);
      EXPECT_EQ(dialog.isVisible(), c.message != nullptr);
      EXPECT_EQ(d.report.reports, c.message != nullptr ? 0 : 1);
      if (c.message == nullptr) return;
      ASSERT_EQ(d.prompt.messages.size(), 1u);
      EXPECT_EQ(d.prompt.messages[0], (Message{"Error", c.message, PromptIcon::Stop}));
      EXPECT_EQ(grid.currentIndex(), grid.model()->index(c.row - 1, c.col - 1));
      EXPECT_NE(grid.viewport()->findChild<QLineEdit*>(), nullptr);  // open for typing
    });
  }
}

TEST(IntervalGridDialogsTest, OkWritesTheListsPaddedToTheRowsAndCancelNothing) {
  struct Case {
    GridDialog dialog;
    const char* cell;
    const char* stored;
    int col;  // typed into at row 2
    const char* written;
  };
  const Case cases[] = {
      {Open<Figure619>("Figure619", "F1Chimney"), "Table67Dia", "50,40", 3,
       "50.00,7.125,1.00,1.00,1.00,1.00,1.00"},
      {Open<Figure622>("Figure622", "F1Tower"), "Table610Ratios", ".1,.2,.3,.4,.5,.6,.7,.8", 3,
       "0.10,7.125,0.30,0.40,0.50,0.60,0.70"},
      {Open<TableSpecial>("TableSpecial", "F1Special"), "TableSpecialProjAreas", "1.00,", 3,
       "1.00,7.125,1.00,1.00,1.00,1.00,1.00,"},
      {Open<TableSpecial>("TableSpecial", "F1Special"), "TableSpecialCoefficients", "0.8,", 4,
       "0.80,7.125,1.00,1.00,1.00,1.00,1.00,"},
  };
  for (const bool ok : {true, false}) {
    for (const Case& c : cases) {
      SCOPED_TRACE(std::string(c.cell) + (ok ? " OK" : " Cancel"));
      DialogApp d;
      wb::WriteNamedText(d.Project(), c.cell, c.stored);
      c.dialog.open(d, [&](QDialog& dialog) {
        grid::SheetGrid& grid = *Grid(dialog, c.dialog.grid);
        EXPECT_EQ(grid.model()->rowCount({}), 7);
        EXPECT_EQ(grid.model()->index(0, 0).data().toString(), "50.01");
        EXPECT_EQ(grid.model()->index(0, 1).data().toString(), "60.00");
        EXPECT_EQ(grid.currentIndex(), grid.model()->index(0, 2));
        ASSERT_TRUE(Type(grid, 2, c.col, "7.125"));
        dialog.findChild<QPushButton*>(ok ? "Command1" : "Command2")->click();
        EXPECT_FALSE(dialog.isVisible());
      });
      EXPECT_TRUE(d.prompt.messages.empty());
      EXPECT_EQ(wb::ReadNamedText(d.Project(), c.cell), ok ? c.written : c.stored);
      EXPECT_EQ(d.state.modifiedFlag, ok);
    }
  }
}

TEST(TableSpecialTest, KdBoxAndTheGridsRuleOfTyping) {
  DialogApp d;
  TableSpecial dialog(d.app);
  dialog.show();
  EXPECT_EQ(Field(dialog, "KdEditBox")->text(), "1");  // an empty B115
  grid::SheetGrid& grid = *Grid(dialog, "F1Special");
  for (const char* refused : {"0", "-2", "x"}) {
    EXPECT_FALSE(Type(grid, 1, 3, refused)) << refused;
    EXPECT_EQ(d.prompt.messages.back().text, "Enter value greater than zero.");
  }
  EXPECT_EQ(grid.model()->index(0, 2).data().toString(), "1.00");
  Field(dialog, "KdEditBox")->clear();
  dialog.Command1_Click();
  EXPECT_EQ(wb::ReadNamedText(d.Project(), "Sheet1!$B$115"), "");
  EXPECT_FALSE(dialog.isVisible());
}

TEST(Figure620Test, OkChecksTheRulesAndTheHeightThenWritesTheRatios) {
  ExpectRules<Figure620>(
      {{"SignHorzDimEditBox", "0", "Valid value must be greater than 0"},
       {"SignVertDimEditBox", "-1", "Valid value must be greater than 0"},
       {"SignHeightEditBox", "0", "Valid value must be greater than 0"},
       {"RatioOfSolidAreaToGrossAreaEditBox", "0.69",
        "Valid values are numbers from 0.700 to 1.000"},
       {"HorzDimOfReturnCornerEditBox", "-0.01", "Valid value must be greater or equal to 0"},
       {"SignHeightEditBox", "4.99", kSignTooTall},  // s is 5
       {"SignHeightEditBox", "5", nullptr}});

  DialogApp d;
  Figure620 dialog(d.app);
  dialog.show();
  EXPECT_EQ(Field(dialog, "SignVertDimEditBox")->text(), "5.00");
  const std::pair<const char*, const char*> typed[] = {{"SignHorzDimEditBox", "30"},
                                                       {"SignVertDimEditBox", "6"},
                                                       {"SignHeightEditBox", "24"},
                                                       {"RatioOfSolidAreaToGrossAreaEditBox", "1"},
                                                       {"HorzDimOfReturnCornerEditBox", "3"}};
  for (const auto& [box, text] : typed) Field(dialog, box)->setText(text);
  dialog.Command1_Click();
  EXPECT_FALSE(dialog.isVisible());
  const std::pair<const char*, double> written[] = {{"SignHorzDim", 30}, {"SignVertDim", 6},
                                                    {"SignHeight", 24},  {"ClearanceRatio", 0.25},
                                                    {"AspectRatio", 5},  {"DepthRatio", 0.5}};
  for (const auto& [cell, value] : written) EXPECT_DOUBLE_EQ(d.Number(cell), value) << cell;
}

TEST(OtherStructuresTest, FieldRulesAndCancelOfTheDialogsWithoutAGrid) {
  ExpectRules<Figure621>({{"Text1", "0.71", "Valid values are numbers from 0.000 to 0.700"},
                          {"Text2", "0", "Valid values are numbers from 0.000 to 30.000"}});
  ExpectRules<Figure619>(
      {{"AfBhRatioEditBox", "1.01", "Valid values are numbers from 0.000 to 1.000"}});
  DialogApp d;
  {
    Figure620 dialog(d.app);
    dialog.show();
    Field(dialog, "SignHeightEditBox")->setText("40");
    dialog.findChild<QPushButton*>("Command2")->click();
  }
  {
    Figure621 dialog(d.app);
    dialog.show();
    dialog.findChild<QRadioButton*>("Option1_1")->click();
    Field(dialog, "Text1")->setText("0.5");
    dialog.findChild<QPushButton*>("Command2")->click();
  }
  const std::pair<const char*, double> kept[] = {
      {"SignHeight", 20}, {"ClearanceRatio", 0.9}, {"Table69Shape", 0}, {"Table69Ratio", 0.2}};
  for (const auto& [cell, value] : kept) EXPECT_EQ(d.Number(cell), value) << cell;
  EXPECT_FALSE(d.state.modifiedFlag);
}

// An option clicked, and whether the controls that depend on it are enabled after.
TEST(OtherStructuresTest, ChoicesEnableTheFieldsTheyNeed) {
  struct Case {
    const char* option;
    const char* dependent;
    bool enabled;
  };
  const auto check = [](QDialog& dialog, const Case& c) {
    SCOPED_TRACE(c.option);
    auto* option = dialog.findChild<QAbstractButton*>(c.option);
    ASSERT_NE(option, nullptr);
    option->click();
    EXPECT_EQ(dialog.findChild<QWidget*>(c.dependent)->isEnabled(), c.enabled);
  };
  DialogApp d;
  Figure622 tower(d.app);
  tower.show();
  EXPECT_TRUE(tower.findChild<QWidget*>("DirectionOption_1")->isEnabled());
  for (const Case& c : {Case{"CrossOption_1", "WindDirectionFrame", false},
                        Case{"CrossOption_1", "DirectionOption_0", false},
                        Case{"CrossOption_0", "DirectionOption_1", true}})
    check(tower, c);
  Figure621 signs(d.app);
  signs.show();
  EXPECT_FALSE(Field(signs, "Text2")->isEnabled());  // flat-sided by default
  for (const Case& c : {Case{"Option1_1", "Text2", true}, Case{"Option1_1", "Label2", true},
                        Case{"Option1_0", "Label2", false}})
    check(signs, c);
  Figure619 chimney(d.app);
  chimney.show();
  EXPECT_FALSE(Field(chimney, "AfBhRatioEditBox")->isEnabled());
  for (const Case& c : {Case{"Use6515CheckBox", "AfBhRatioEditBox", true},
                        Case{"Use6515CheckBox", "AfBhRatioLabel", false}})
    check(chimney, c);
}

}  // namespace
}  // namespace gustline
