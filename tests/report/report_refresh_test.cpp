#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

#include "TempFolder.h"
#include "core/ApplicationView.h"
#include "core/FileNames.h"
#include "core/workbook/model/Workbook.h"
#include "report/ReportRefresh.h"

namespace gustline::report {
namespace {

// A project with `HillType` and a value the report links to.
void FillProject(wb::Workbook& project, int hillType) {
  project.SetCellNumber(19, 2, hillType);
  project.SetDefinedName("HillType", "Sheet1!$B$19");
  project.SetCellNumber(24, 2, 60);
  project.SetDefinedName("Height", "Sheet1!$B$24");
}

// Three pages; page 2 has the "Topography" line in column D, row 5.
void FillReport(wb::Workbook& report, int lastRowOfPage3) {
  report.SetSheetName(1, "Page 1");
  report.AddSheet("Page 2");
  report.AddSheet("Page 3");
  report.SetActiveSheet(2);
  report.SetCellText(5, 4, "Topography");
  report.SetActiveSheet(3);
  report.SetCellNumber(lastRowOfPage3, 1, 1);
}

TEST(ReportRefreshTest, FormatHidesTheTopographyRowsOfPageTwoWithoutAHill) {
  for (const int hillType : {0, 3, 4}) {
    wb::Workbook project("WindData");
    FillProject(project, hillType);
    wb::Workbook report("ServerSS");
    FillReport(report, 10);
    report.SetActiveSheet(1);
    report.SetCellText(5, 4, "Topography");
    FormatReportSheets(report, project);

    std::vector<int> expected;
    if (hillType == 4)
      for (int row = 6; row <= 15; ++row) expected.push_back(row);
    EXPECT_EQ(report.GetSheet(2).HiddenRows(), expected) << "hill type " << hillType;
    EXPECT_TRUE(report.GetSheet(1).HiddenRows().empty());
    EXPECT_EQ(report.ActiveSheet(), 1);
    EXPECT_TRUE(report.AutoRecalc());
  }
}

TEST(ReportRefreshTest, FormatShowsFiftyFiveRowsOrFiveBeyondTheLast) {
  struct Case {
    int lastRow;
    int maxRow;
  };
  for (const Case c : {Case{10, 55}, Case{55, 55}, Case{56, 61}, Case{200, 205}}) {
    wb::Workbook project("WindData");
    FillProject(project, 0);
    wb::Workbook report("ServerSS");
    FillReport(report, c.lastRow);
    report.GetSheet(3).Display().gridLines = true;
    report.GetSheet(3).Print().printArea = "A1:B2";
    FormatReportSheets(report, project);
    report.SetActiveSheet(3);
    EXPECT_EQ(report.MaxRow(), c.maxRow) << "last row " << c.lastRow;
    EXPECT_EQ(report.GetSheet(3).Display(),
              (wb::DisplaySwitches{false, false, false, false, false, false, false, false, false}));
    EXPECT_EQ(report.GetSheet(3).Print().printArea, "");
  }
}

TEST(ReportRefreshTest, RefreshBindsLinksOfABookReadBeforeTheProjectOpened) {
  const auto path = gustline::testing::UniqueTempFolder("gustline-refresh-test-") += ".gwb";
  {
    wb::Workbook source("Linked");
    source.SetCellFormula(1, 1, "[WindData]Sheet1!Height*2");
    source.SetCellText(2, 1, "Heading");
    source.WriteWorkbook(path.string(), wb::FileType::Native);
  }
  wb::Workbook report("ServerSS");
  report.ReadWorkbook(path.string());
  wb::Workbook project("WindData");
  FillProject(project, 0);
  RecordingView view;
  RefreshReportLinks(report, view);
  EXPECT_EQ(report.CellNumber(1, 1), 120);
  EXPECT_EQ(report.CellText(2, 1), "Heading");
  EXPECT_EQ(view.panels[1], "Refreshing report...");
  std::filesystem::remove(path);
}

TEST(ReportRefreshTest, TemplateTravelsThroughItsTemporaryFileInAPrivateFolder) {
  wb::Workbook source(" Figure610 ");
  source.SetCellText(3, 2, "Wind");
  source.SetDefinedName("Start", "Sheet1!$B$3:$C$3");
  wb::Workbook report("ServerSS");
  LoadTemplateToReport(source, report);
  const std::filesystem::path path = TemporaryBookPath("Figure610");
  EXPECT_TRUE(std::filesystem::exists(path));
  EXPECT_EQ(path.filename(), "Figure61001.vts");
  EXPECT_EQ(std::filesystem::status(path.parent_path()).permissions(),
            std::filesystem::perms::owner_all);
  EXPECT_EQ(report.CellText(3, 2), "Wind");
  EXPECT_EQ(report.DefinedName("Start"), source.DefinedName("Start"));
}

TEST(ReportRefreshTest, PageSetupCopiesOverTheSheetsBothBooksHave) {
  wb::Workbook from("ServerSS");
  from.AddSheet("Page 2");
  from.AddSheet("Page 3");
  for (int sheet = 1; sheet <= 3; ++sheet) {
    wb::PrintSetup& print = from.GetSheet(sheet).Print();
    print.header = "Sheet " + std::to_string(sheet);
    print.topMargin = 0.25 * sheet;
    print.landscape = true;
    print.printArea = "A1:C3";
  }
  from.SetActiveSheet(3);
  wb::Workbook to("WindData");
  to.AddSheet("Sheet2");
  CopyPageSetup(from, to);
  for (int sheet = 1; sheet <= 2; ++sheet) {
    const wb::PrintSetup& print = to.GetSheet(sheet).Print();
    EXPECT_EQ(print.header, "Sheet " + std::to_string(sheet));
    EXPECT_EQ(print.topMargin, 0.25 * sheet);
    EXPECT_TRUE(print.landscape);
    EXPECT_EQ(print.printArea, "") << "the print area is not part of the page setup";
  }
  EXPECT_EQ(from.ActiveSheet(), 3);
  EXPECT_EQ(to.ActiveSheet(), 1);
}

}  // namespace
}  // namespace gustline::report
