#include <gtest/gtest.h>

#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "ReportFixture.h"
#include "core/FileNames.h"
#include "core/workbook/value/FacilityError.h"
#include "geometry/HeightList.h"

namespace gustline::report {
namespace {

using testing::ReportFixture;
using enum TemplateContainer;

wb::Value N(double number) {
  return wb::Value::Number(number);
}
wb::Value T(const char* text) {
  return wb::Value::Text(text);
}

// A forces table in row 11 of a page: heights B:C, area D, p E (from the pressures page),
// force F, shear G, F·Ybar H, moment I, the running sums starting under the headings.
void AddForcesTable(wb::Workbook& book, int sheet, const char* start, const char* topRow,
                    const char* startArea) {
  book.SetActiveSheet(sheet);
  const std::string page = "'" + book.SheetName(sheet) + "'!";
  book.SetCellText(10, 4, "Area");
  book.SetCellText(10, 7, "Shear");
  book.SetCellText(10, 9, "Moment");
  book.SetCellFormula(11, 5, "'Page 3'!D11");
  book.SetCellFormula(11, 6, "D11*E11");
  book.SetCellFormula(11, 7, "IF(ISNUMBER(G10),G10,0)+F11");
  book.SetCellFormula(11, 8, "F11*C11");
  book.SetCellFormula(11, 9, "IF(ISNUMBER(I10),I10,0)+H11");
  book.SetDefinedName(start, page + "$B$11:$C$11");
  book.SetDefinedName(topRow, page + "$E$11:$I$11");
  book.SetDefinedName(startArea, page + "$D$11");
}

// A small template of the buildings' kind: page 1 with the system lines and a link, page 3
// the pressures (p = 2·z, and a link beside it) with the parapet block, pages 4 and 5 the
// forces. With `twoTables` the third table is left out and a list column stands on page 3.
std::unique_ptr<wb::Workbook> TablesTemplate(const std::string& name, bool twoTables = false) {
  auto book = std::make_unique<wb::Workbook>(name);
  book->SetSheetName(1, "Page 1");
  for (int sheet = 2; sheet <= (twoTables ? 4 : 5); ++sheet)
    book->AddSheet("Page " + std::to_string(sheet));
  book->SetActiveSheet(1);
  book->SetCellText(14, 2, "Main Wind-Force");
  book->SetCellText(15, 2, "Resisting System");
  book->SetCellFormula(1, 1, "[WindData]Sheet1!WindSpeed");
  book->SetActiveSheet(3);
  book->SetCellText(10, 2, "Low");
  book->SetCellText(10, 3, "High");
  book->SetCellFormula(11, 4, "C11*2");
  book->SetCellFormula(11, 5, "[WindData]Sheet1!Height+C11");
  book->SetCellText(40, 1, "Parapet");
  book->SetDefinedName("Start", "'Page 3'!$B$11:$C$11");
  book->SetDefinedName("TopRow", "'Page 3'!$D$11:$E$11");
  book->SetDefinedName("IncludeParapet", "'Page 3'!$A$40:$B$41");
  book->SetDefinedName(name == "TableSpecial" ? "CfFactors" : "StartDiam", "'Page 3'!$F$11");
  AddForcesTable(*book, 4, "Start2", "TopRow2", "StartArea");
  if (!twoTables) AddForcesTable(*book, 5, "Start3", "TopRow3", "StartArea2");
  book->SetActiveSheet(1);
  return book;
}

// A template with nothing to repeat: the system lines only, named for the heading builder.
std::unique_ptr<wb::Workbook> PlainTemplate(const std::string& name) {
  auto book = std::make_unique<wb::Workbook>(name);
  book->SetCellText(14, 2, "Main Wind-Force");
  book->SetCellText(15, 2, "Resisting System");
  book->SetDefinedName("SystemLine1", "Sheet1!$B$14");
  book->SetDefinedName("SystemLine2", "Sheet1!$B$15");
  return book;
}

class ReportGeneratorTest : public ::testing::Test, public ReportFixture {
 protected:
  ReportGeneratorTest() {
    Set("System", 0);
    Set("Structure", 1);
    Set("Figure", 1);
    Set("GustType", 0);
    Install(*TablesTemplate("Figure66A"), D);
  }
  // The rows of the default height list: 60 ft by the standard ladder.
  const int rows_ = geometry::CountHeightRows(60, 0, "");
};

TEST_F(ReportGeneratorTest, RepeatsTheRowsAndWritesTheSummaryByOrder) {
  ASSERT_EQ(rows_, 7);
  const int last = 11 + rows_ - 1;
  struct Case {
    int order;
    int baseRow;
    int topRow;     // the row of the highest interval
    int bottomRow;  // the row of 0 to 15 ft
  };
  for (const Case c : {Case{0, last, 11, last}, Case{1, 11, last, 11}}) {
    Set("Order", c.order);
    generator.CreateReport(app);
    ASSERT_TRUE(prompt.messages.empty()) << prompt.messages.front().text;
    EXPECT_EQ(generator.TemplateName(), "Figure66A");
    for (const int sheet : {3, 4, 5}) {
      EXPECT_EQ(Cell(sheet, c.topRow, 3), N(60)) << "order " << c.order;
      EXPECT_EQ(Cell(sheet, c.bottomRow, 2), N(0));
      EXPECT_EQ(Cell(sheet, c.bottomRow, 3), N(15));
    }
    // The sample row's formulas follow their row, and the links read the project.
    EXPECT_EQ(Cell(3, c.bottomRow, 4), N(30));
    EXPECT_EQ(Cell(3, c.topRow, 5), N(120));
    EXPECT_TRUE(Cell(3, last + 1, 4).IsEmpty());
    EXPECT_EQ(Report().GetCellStyle(last, 2).bottom.style, 1);
    EXPECT_EQ(Report().GetCellStyle(last - 1, 2).bottom.style, 0);
    // The 50 ft wide outline gives some 750 sq ft in its lowest 15 ft (the interval reaches
    // into the 0.01 ft gap above it).
    for (const int sheet : {4, 5}) {
      EXPECT_NEAR(Cell(sheet, c.bottomRow, 4).AsNumber(), 750, 0.5);
      const int s = last + 4;
      EXPECT_EQ(Cell(sheet, s, 2), T("Total Area"));
      EXPECT_EQ(Cell(sheet, s + 1, 2), T("Base Shear"));
      EXPECT_EQ(Cell(sheet, s + 2, 2), T("Base Moment"));
      EXPECT_EQ(Cell(sheet, s, 5), T("(sq. ft.)"));
      EXPECT_EQ(Formula(sheet, s, 4), "SUM($D$11:$D$" + std::to_string(last + 1) + ")");
      const std::string base = std::to_string(c.baseRow);
      EXPECT_EQ(Formula(sheet, s + 1, 4), "$G$" + base);
      EXPECT_EQ(Formula(sheet, s + 2, 4), "$I$" + base);
      EXPECT_EQ(Cell(sheet, s + 1, 4), Cell(sheet, c.baseRow, 7));
      EXPECT_EQ(Report().GetCellStyle(s + 1, 4).numberFormat, "#,###");
      EXPECT_EQ(Formula(sheet, s + 1, 5), "[WindData]sheet3!U_Str_Force");
    }
  }
}

TEST_F(ReportGeneratorTest, FinishesTheReportForViewingAndPrinting) {
  Set("HasParapet", 0);
  generator.CreateReport(app);
  EXPECT_TRUE(Cell(3, 40, 1).IsEmpty()) << "the parapet block goes without a parapet";
  EXPECT_EQ(Cell(1, 14, 2), T("Main Wind-Force"));
  EXPECT_EQ(Cell(1, 1, 1), N(wb::ReadNamedNumber(Project(), "WindSpeed")));
  for (int sheet = 1; sheet <= Report().SheetCount(); ++sheet) {
    const wb::PrintSetup& print = Report().GetSheet(sheet).Print();
    EXPECT_EQ(print.footer, "&A");
    EXPECT_EQ(print.header, "");
    EXPECT_FALSE(print.gridLines);
  }
  EXPECT_TRUE(Report().IterationOn());
  EXPECT_TRUE(Report().AutoRecalc());
  EXPECT_EQ(Report().ActiveSheet(), 1);
  EXPECT_EQ(view.panels[1], " Press F1 for Help");
  EXPECT_EQ(view.panels[2], " V = 90.00 mph ");
  EXPECT_TRUE(std::filesystem::exists(TemporaryBookPath("Figure66A")));

  Set("HasParapet", 1);
  generator.CreateReport(app);
  EXPECT_EQ(Cell(3, 40, 1), T("Parapet"));
}

TEST_F(ReportGeneratorTest, KeepsTheFormerReportWhenNoneIsMade) {
  generator.CreateReport(app);
  ASSERT_EQ(generator.TemplateName(), "Figure66A");
  const wb::Value windward = Cell(3, 11, 4);
  struct Case {
    const char* what;
    std::vector<std::pair<const char*, double>> sets;
    std::vector<Message> messages;
    const char* panel1;
  };
  const std::vector<Case> cases = {
      {"no row for a flexible enclosed building", {{"GustType", 2}}, {}, " Press F1 for Help"},
      {"zero width of an open structure",
       {{"System", 2}, {"Table", 0}, {"Width", 0}},
       {{"Error",
         "Structure height / Structure width must be greater than or equal to 0.25 and less "
         "than or equal to 1.0 ",
         PromptIcon::Stop}},
       ""},
      {"invalid roof type",
       {{"System", 2}, {"Table", 2}, {"Table66RoofType", 4}},
       {{"", "Invalid roof type"}},
       " Press F1 for Help"},
      {"too few rows for the special case",
       {{"System", 2}, {"Table", 7}, {"Interval", 2}, {"Height", 2}},
       {{"", "Halt pRowCount Error."}},
       " Press F1 for Help"},
  };
  for (const Case& c : cases) {
    Set("System", 0);
    Set("Structure", 1);
    Set("GustType", 0);
    Set("Width", 100);
    Set("Height", 60);
    Set("Interval", 0);
    for (const auto& [name, value] : c.sets) Set(name, value);
    if (std::string(c.what) == "too few rows for the special case")
      Install(*TablesTemplate("TableSpecial", true), D);
    prompt.messages.clear();
    generator.CreateReport(app);
    EXPECT_EQ(prompt.messages, c.messages) << c.what;
    EXPECT_EQ(generator.TemplateName(), "Figure66A") << c.what;
    EXPECT_EQ(Cell(3, 11, 4), windward) << c.what;
    EXPECT_EQ(view.panels[1], c.panel1) << c.what;
  }
}

TEST_F(ReportGeneratorTest, MissingTemplateGoesToTheCommonErrorReport) {
  generator.CreateReport(app);
  Set("System", 2);
  generator.CreateReport(app);
  ASSERT_EQ(prompt.messages.size(), 1u);
  EXPECT_EQ(prompt.messages[0].title, "Error");
  EXPECT_EQ(prompt.messages[0].icon, PromptIcon::Stop);
  EXPECT_EQ(prompt.messages[0].text.rfind("Gustline error : \r\nThe report template "
                                          "Figure618A of ContainerA is not built yet",
                                          0),
            0u);
  EXPECT_EQ(generator.TemplateName(), "Figure66A");
  EXPECT_EQ(Cell(3, 11, 3), N(60)) << "the former report stays";
  EXPECT_EQ(Report().MousePointer(), 1);

  try {
    generator.BuildReport(app);
    FAIL() << "BuildReport lets the error through";
  } catch (const wb::FacilityError& error) {
    EXPECT_EQ(error.Number(), wb::errc::kTemplateMissing);
  }
}

TEST_F(ReportGeneratorTest, HeadingBuildersWriteTheSystemLinesForCladding) {
  struct Case {
    std::vector<std::pair<const char*, double>> sets;
    const char* name;
    TemplateContainer container;
    const char* line14;
    const char* line15;
  };
  const std::vector<Case> cases = {
      {{{"System", 1}, {"Structure", 2}, {"Figure", 8}},
       "Figure68B",
       F,
       "Components",
       "and Cladding"},
      {{{"System", 2}, {"B124", 1}}, "SimpCompAndClad", F, "Main Wind-Force", "Resisting System"},
  };
  for (const Case& c : cases) {
    Install(*PlainTemplate(c.name), c.container);
    for (const auto& [name, value] : c.sets) Set(name, value);
    generator.CreateReport(app);
    EXPECT_EQ(generator.TemplateName(), c.name);
    EXPECT_EQ(Cell(1, 14, 2), T(c.line14)) << c.name;
    EXPECT_EQ(Cell(1, 15, 2), T(c.line15)) << c.name;
  }
}

TEST_F(ReportGeneratorTest, ChimneysListTheirDiametersAndTheFactorOfSection6_5_15_1) {
  Install(*TablesTemplate("Figure619A", true), A);
  Set("System", 2);
  Set("Table", 4);
  wb::WriteNamedText(Project(), "Table67Dia", "10,20,30,40,50,60,70");
  for (const double factor : {1.0, 1.15}) {
    Set("Sect_6_5_15_1_MultFactor", factor);
    generator.CreateReport(app);
    ASSERT_EQ(generator.TemplateName(), "Figure619A");
    EXPECT_EQ(Cell(3, 11, 6), N(10));
    EXPECT_EQ(Cell(3, 17, 6), N(70));
    const int s = 17 + 4;
    const wb::Value note = Cell(4, s - 2, 2);
    if (factor > 1)
      EXPECT_EQ(note, T("Note: Forces multiplied by a factor of 1.15 per 6.5.15.1"));
    else
      EXPECT_TRUE(note.IsEmpty());
    EXPECT_EQ(Report().SheetCount(), 4);
  }
}

}  // namespace
}  // namespace gustline::report
