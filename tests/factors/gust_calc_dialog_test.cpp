#include <gtest/gtest.h>

#include <QAction>
#include <QComboBox>
#include <QDir>
#include <QLabel>
#include <QMenu>

#include "DialogTesting.h"
#include "factors/qt/frmGustCalc.h"
#include "ui/rules/CheckRule.h"

namespace gustline {
namespace {

using testing::DialogApp;
using testing::Field;

struct CalculatorApp : DialogApp {
  CalculatorApp() { state.applicationPath = GUSTLINE_BIN_DIR; }
};

QString GustLabel(frmGustCalc& calculator) {
  return calculator.findChild<QLabel*>("Label1")->text();
}

TEST(GustCalcDialogTest, OpensOnItsStartingValuesAndFollowsEveryEdit) {
  CalculatorApp d;
  frmGustCalc calculator(d.app);
  const GustCalcValues start = calculator.Values();
  EXPECT_EQ(start.exposure, 0);
  EXPECT_EQ(calculator.findChild<QComboBox*>("Combo1")->currentText(), " A");
  for (const char* box : {"txHeight", "txWidth", "txDepth", "txFreq", "txBeta"})
    EXPECT_EQ(Field(calculator, box)->text(), "1.00") << box;
  EXPECT_EQ(Field(calculator, "txWind")->text(), "90.00");
  const struct {
    const char* box;
    const char* text;
    const char* label;
  } edits[] = {{"txHeight", "600", nullptr},   {"txWidth", "100", nullptr},
               {"txDepth", "100", nullptr},    {"txFreq", "0.2", nullptr},
               {"txBeta", "1", " G = 1.0564"},  // the inputs stored in the calculator's book
               {"txBeta", "", " G = #DIV/0!"}, {"txBeta", "1.00", " G = 1.0564"}};
  for (const auto& edit : edits) {
    Field(calculator, edit.box)->setText(edit.text);
    if (edit.label != nullptr) {
      EXPECT_EQ(GustLabel(calculator), edit.label) << edit.box;
    }
  }
  calculator.findChild<QComboBox*>("Combo1")->setCurrentIndex(2);
  EXPECT_NE(GustLabel(calculator), " G = 1.0564");
  // The project is not the calculator's.
  EXPECT_FALSE(d.state.modifiedFlag);
  EXPECT_EQ(d.Number("Height"), 60);
  EXPECT_EQ(d.report.reports, 0);
}

TEST(GustCalcDialogTest, ABoxLeftOutsideItsRuleTakesTheFocusBack) {
  CalculatorApp d;
  frmGustCalc calculator(d.app);
  calculator.show();
  Field(calculator, "txBeta")->setText("60");
  EXPECT_FALSE(calculator.CheckField("txBeta"));
  ASSERT_FALSE(d.prompt.messages.empty());
  EXPECT_EQ(d.prompt.messages.back().title, rules::kRangeErrorTitle);
  Field(calculator, "txWind")->setText("-60");
  EXPECT_TRUE(calculator.CheckField("txWind"));
}

TEST(GustCalcDialogTest, ViewShowsTheBookWithItsPopupAndReturns) {
  CalculatorApp d;
  frmGustCalc calculator(d.app);
  calculator.resize(640, 560);
  calculator.show();
  auto* input = calculator.findChild<QWidget*>("picInput");
  QStringList captions;
  for (const QAction* action : calculator.Popup().actions()) captions << action->text();
  EXPECT_EQ(captions, QStringList({"&Copy", "Select &All", "&Print...", "Return to Calculator"}));
  EXPECT_TRUE(QDir().mkpath(GUSTLINE_PICTURES_DIR));
  EXPECT_TRUE(calculator.grab().save(QStringLiteral(GUSTLINE_PICTURES_DIR "/gust_calculator.png")));

  calculator.Command1_Click();
  EXPECT_FALSE(input->isVisible());
  calculator.SelectAll();
  EXPECT_EQ(calculator.Book().Selection(), "$A$1:$L$70");
  EXPECT_TRUE(
      calculator.grab().save(QStringLiteral(GUSTLINE_PICTURES_DIR "/gust_calculator_view.png")));
  calculator.ReturnToCalculator();
  EXPECT_TRUE(input->isVisible());
}

}  // namespace
}  // namespace gustline
