#include <gtest/gtest.h>

#include <QComboBox>
#include <QDir>
#include <QScrollBar>

#include "DialogTesting.h"
#include "report/qt/ReportView.h"
#include "ui/qt/WindDataFrm.h"

namespace gustline {
namespace {

using testing::DialogApp;

TEST(WindDataFrmTest, TheSectionListScrollsTheProjectAndNothingIsWritten) {
  DialogApp d;
  QWidget owner;
  WindDataFrm& inspector = ShowWindDataFrm(&owner, d.app);
  EXPECT_EQ(&ShowWindDataFrm(&owner, d.app), &inspector);
  inspector.resize(800, 600);
  auto* sections = inspector.findChild<QComboBox*>("Combo1");
  EXPECT_EQ(sections->count(), 24);
  EXPECT_EQ(d.Project().GetSheet(1).Print().printArea, "A1:b109");

  inspector.Combo1_Click("Gust Response");
  const int top = d.Project().TopRow();
  EXPECT_GT(top, 1);
  const int scrolled = inspector.View().verticalScrollBar()->value();
  EXPECT_GT(scrolled, 0);
  inspector.Combo1_Click("Nothing Of That Name");
  EXPECT_EQ(d.Project().TopRow(), top);
  EXPECT_EQ(inspector.View().verticalScrollBar()->value(), scrolled);

  sections->setCurrentIndex(2);
  inspector.Combo1_Click(sections->currentText());
  EXPECT_TRUE(QDir().mkpath(GUSTLINE_PICTURES_DIR));
  EXPECT_TRUE(
      inspector.grab().save(QStringLiteral(GUSTLINE_PICTURES_DIR "/wind_data_inspector.png")));
  EXPECT_FALSE(d.state.modifiedFlag);
  EXPECT_EQ(d.report.reports, 0);
}

}  // namespace
}  // namespace gustline
