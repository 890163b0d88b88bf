#include <gtest/gtest.h>

#include <QAction>
#include <QCheckBox>
#include <QDir>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QRadioButton>
#include <QTabWidget>

#include "DialogTesting.h"
#include "buildings/qt/Fig66.h"
#include "geometry/qt/Geometry.h"
#include "geometry/qt/OutlineChart.h"
#include "geometry/qt/OutlinePicture.h"
#include "geometry/qt/frmViewChart.h"

namespace gustline::geometry {
namespace {

using gustline::testing::DialogApp;

// The outline of the project's Sheet2, row by row.
std::string OutlineText(wb::Workbook& project) {
  const int active = project.ActiveSheet();
  project.SetActiveSheet(kProjectOutlineSheet);
  project.SetSelection("A1:B100");
  std::string text = project.ClipText();
  project.SetActiveSheet(active);
  return text;
}

TEST(GeometryDialog, OpensAtTheTabAskedWithTheProjectInItsGrids) {
  DialogApp d;
  Geometry dialog(d.app);
  dialog.Display(Geometry::kCoordinatesTab);
  EXPECT_EQ(dialog.findChild<QTabWidget*>("SStab1")->currentIndex(), 1);
  EXPECT_TRUE(dialog.findChild<QRadioButton*>("Option1_0")->isChecked());
  EXPECT_EQ(dialog.OutlineGrid().ClipText().empty(), false);
  dialog.OutlineGrid().SetSelection("A1:B5");
  EXPECT_EQ(dialog.OutlineGrid().ClipText(), "0\t0\r\n0\t60\r\n50\t60\r\n50\t0\r\n0\t0\r\n");
  EXPECT_EQ(dialog.IntervalGrid().CellText(1, 3), "1.00") << "UserIntervals \"1,\"";
  EXPECT_FALSE(dialog.findChild<QWidget*>("F1Book1")->isEnabled());
  dialog.resize(620, 520);
  QDir().mkpath(QStringLiteral(GUSTLINE_PICTURES_DIR));
  EXPECT_TRUE(dialog.grab().save(QStringLiteral(GUSTLINE_PICTURES_DIR "/geometry_dialog.png")));
  dialog.Display(Geometry::kIntervalsTab);
  EXPECT_EQ(dialog.findChild<QTabWidget*>("SStab1")->currentIndex(), 0);
}

TEST(GeometryDialog, CancelLosesEveryEditAndBuildsNothing) {
  DialogApp d;
  const std::string outlineBefore = OutlineText(d.Project());
  Geometry dialog(d.app);
  dialog.Display(Geometry::kIntervalsTab);
  dialog.show();
  dialog.Option1_Click(5);
  dialog.Option2_Click(1);
  dialog.IntervalGrid().SetCellNumber(1, 3, 250);
  dialog.OutlineGrid().SetCellNumber(2, 2, 600);
  dialog.Command2_Click();
  EXPECT_FALSE(dialog.isVisible());
  EXPECT_EQ(wb::ReadNamedInt(d.Project(), "Interval"), 0);
  EXPECT_EQ(wb::ReadNamedInt(d.Project(), "Order"), 0);
  EXPECT_EQ(wb::ReadNamedText(d.Project(), "UserIntervals"), "1,");
  EXPECT_EQ(OutlineText(d.Project()), outlineBefore);
  EXPECT_FALSE(d.state.modifiedFlag);
  EXPECT_EQ(d.report.reports, 0);
  dialog.Display(Geometry::kCoordinatesTab);  // the next visit shows the project again
  EXPECT_DOUBLE_EQ(dialog.OutlineGrid().CellNumber(2, 2), 60);
}

TEST(GeometryDialog, UserLengthsThatSumToNothingAreRefusedAndNothingIsWritten) {
  DialogApp d;
  Geometry dialog(d.app);
  dialog.Display(Geometry::kIntervalsTab);
  dialog.show();
  dialog.Option1_Click(5);
  dialog.IntervalGrid().SetSelection("C1:C100");
  dialog.IntervalGrid().ClearRange(3);
  dialog.Command1_Click();
  EXPECT_TRUE(dialog.isVisible());
  ASSERT_FALSE(d.prompt.messages.empty());
  EXPECT_EQ(d.prompt.messages.back().text, " Sum of lengths error.");
  EXPECT_EQ(wb::ReadNamedInt(d.Project(), "Interval"), 0);
  EXPECT_EQ(d.report.reports, 0);
}

TEST(GeometryDialog, OkWritesTheProjectBuildsTheReportAndKeepsFromAndToAfterALaterCancel) {
  DialogApp d;
  Geometry dialog(d.app);
  dialog.Display(Geometry::kIntervalsTab);
  dialog.show();
  dialog.Option1_Click(5);
  dialog.IntervalGrid().SetSelection("C1");
  dialog.IntervalGrid().SetClipText("200\r\n200\r\n200\r\n");
  dialog.OutlineGrid().SetSelection("A1");
  dialog.OutlineGrid().SetClipText("0\t0\n0\t600\n100\t600\n100\t0\n0\t0\n");
  dialog.Command1_Click();
  EXPECT_FALSE(dialog.isVisible());
  EXPECT_EQ(wb::ReadNamedInt(d.Project(), "Interval"), 5);
  EXPECT_DOUBLE_EQ(d.Number("Height"), 600);
  EXPECT_EQ(wb::ReadNamedText(d.Project(), "UserIntervals"), "200.00 200.00 200.00");
  EXPECT_EQ(wb::ReadNamedInt(d.Project(), "OKPressedOnGeometryForm"), 1);
  EXPECT_EQ(OutlineText(d.Project()), "0\t0\r\n0\t600\r\n100\t600\r\n100\t0\r\n0\t0\r\n");
  EXPECT_TRUE(d.state.modifiedFlag);
  EXPECT_EQ(d.report.reports, 1);

  dialog.Display(Geometry::kIntervalsTab);
  dialog.Command2_Click();
  dialog.Display(Geometry::kIntervalsTab);
  EXPECT_DOUBLE_EQ(dialog.IntervalGrid().CellNumber(3, 2), 600) << "From and To kept";
}

TEST(GeometryDialog, CalculateAreaShowsTheNetAreaOfTheOutline) {
  DialogApp d;
  Geometry dialog(d.app);
  dialog.Display(Geometry::kCoordinatesTab);
  dialog.Command6_Click();
  EXPECT_EQ(dialog.findChild<QLabel*>("Label2")->text(), QStringLiteral("3,000.00 sq. ft."));
}

TEST(GeometryDialog, IgnoreAreaIsTheProgramsSwitchAndWallGeometryOpensTheDialog) {
  DialogApp d;
  Geometry dialog(d.app);
  dialog.findChild<QCheckBox*>("Check1")->setChecked(true);
  EXPECT_TRUE(d.state.ignoreAreaCalculation);
  int opened = 0;
  Fig66 withGeometry(d.app, [&] { ++opened; });
  withGeometry.findChild<QPushButton*>("Command3")->click();
  EXPECT_EQ(opened, 1);
  Fig66 without(d.app);
  EXPECT_FALSE(without.findChild<QPushButton*>("Command3")->isEnabled());
}

TEST(OutlineViewer, DrawsEachBoundaryApartAndRefusesAnEmptyGrid) {
  DialogApp d;
  frmViewChart viewer(d.prompt);
  wb::Workbook empty;
  EXPECT_FALSE(viewer.ViewGeometry(empty, {}));
  EXPECT_EQ(d.prompt.messages.back().title, "Information");

  // A wall of 60 by 40 ft with a window, cut every 10 ft.
  wb::Workbook grid;
  grid.SetSelection("A1");
  grid.SetClipText("0\t0\n0\t40\n60\t40\n60\t0\n0\t0\n\n25\t10\n25\t30\n35\t30\n35\t10\n25\t10\n");
  ASSERT_TRUE(viewer.ViewGeometry(grid, {0, 10, 20, 30, 40}));
  EXPECT_EQ(viewer.Chart().Plot().boundaries.size(), 2U);
  EXPECT_EQ(viewer.Chart().Plot().title, QStringLiteral("Elevation View"));

  // Between the outer boundary's last point (0, 0) and the window's first (25, 10) runs no
  // line; the window's own side at x = 25 is drawn in a series colour.
  const QImage image = OutlineImage(viewer.Chart().Plot(), QSize(800, 600));
  const QTransform toScreen = OutlineTransform(QRectF(0, 0, 800, 600), viewer.Chart().Plot());
  const auto isGray = [&](double x, double y) {
    const QRgb pixel = image.pixel(toScreen.map(QPointF(x, y)).toPoint());
    return qRed(pixel) == qGreen(pixel) && qGreen(pixel) == qBlue(pixel);
  };
  EXPECT_TRUE(isGray(12.5, 5));
  EXPECT_FALSE(isGray(25, 15));
  QDir().mkpath(QStringLiteral(GUSTLINE_PICTURES_DIR));
  EXPECT_TRUE(image.save(QStringLiteral(GUSTLINE_PICTURES_DIR "/outline_viewer.png")));
  for (const QString& name : {QStringLiteral("mnuCopy"), QStringLiteral("mnuPrint"),
                              QStringLiteral("mnuTitle"), QStringLiteral("mnuClose")})
    EXPECT_NE(viewer.PopupMenu()->findChild<QAction*>(name), nullptr) << name.toStdString();
}

}  // namespace
}  // namespace gustline::geometry
