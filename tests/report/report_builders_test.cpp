#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "ReportFixture.h"
#include "core/workbook/model/NamedCells.h"
#include "core/workbook/value/FacilityError.h"
#include "core/workbook/value/Value.h"
#include "geometry/HeightList.h"
#include "report/TemplateCatalog.h"

namespace gustline::report {
namespace {

using testing::ReportFixture;
using enum TemplateContainer;
using enum ReportBuilder;
using Inputs = std::vector<std::pair<const char*, double>>;

wb::Value N(double number) {
  return wb::Value::Number(number);
}
wb::Value T(const char* text) {
  return wb::Value::Text(text);
}

// A template of `sheets` pages "Page 1", "Page 2", ..., each with its own name in A2 so that
// a page can be told after sheets are deleted, and the system lines on page 1, unnamed.
std::unique_ptr<wb::Workbook> BarePagesTemplate(const std::string& name, int sheets) {
  auto book = std::make_unique<wb::Workbook>(name);
  book->SetSheetName(1, "Page 1");
  for (int sheet = 2; sheet <= sheets; ++sheet) book->AddSheet("Page " + std::to_string(sheet));
  for (int sheet = 1; sheet <= sheets; ++sheet) {
    book->SetActiveSheet(sheet);
    book->SetCellText(2, 1, book->SheetName(sheet));
  }
  book->SetActiveSheet(1);
  book->SetCellText(14, 2, "Main Wind-Force");
  book->SetCellText(15, 2, "Resisting System");
  return book;
}

// As BarePagesTemplate, with the names the page builders reach: the system lines, the
// parapet page 4, the steep roof rows 45 to 59 of page 2 and the Case C rows 28 to 39 of
// page 3.
std::unique_ptr<wb::Workbook> PagesTemplate(const std::string& name, int sheets) {
  auto book = BarePagesTemplate(name, sheets);
  book->SetDefinedName("SystemLine1", "'Page 1'!$B$14");
  book->SetDefinedName("SystemLine2", "'Page 1'!$B$15");
  book->SetDefinedName("ParapetPage", "'" + book->SheetName(4) + "'!$A$2");
  book->SetDefinedName("SteepRoofRows", "'Page 2'!$A$45:$J$59");
  book->SetDefinedName("CaseCRows", "'Page 3'!$A$28:$J$39");
  return book;
}

// A pressures table in row 11 of a page: heights B:C and p = 2·z in D.
void AddPressuresTable(wb::Workbook& book, int sheet, const char* start, const char* topRow) {
  book.SetActiveSheet(sheet);
  const std::string page = "'" + book.SheetName(sheet) + "'!";
  book.SetCellFormula(11, 4, "C11*2");
  book.SetDefinedName(start, page + "$B$11:$C$11");
  book.SetDefinedName(topRow, page + "$D$11");
}

// The forces table on page 4: heights B:C, area D, p E from page 3, force F, running shear G,
// F·z H, running moment I.
void AddForcesTable(wb::Workbook& book) {
  book.SetActiveSheet(4);
  book.SetCellText(10, 7, "Shear");
  book.SetCellText(10, 9, "Moment");
  book.SetCellFormula(11, 5, "'Page 3'!D11");
  book.SetCellFormula(11, 6, "D11*E11");
  book.SetCellFormula(11, 7, "IF(ISNUMBER(G10),G10,0)+F11");
  book.SetCellFormula(11, 8, "F11*C11");
  book.SetCellFormula(11, 9, "IF(ISNUMBER(I10),I10,0)+H11");
  book.SetDefinedName("Start2", "'Page 4'!$B$11:$C$11");
  book.SetDefinedName("TopRow2", "'Page 4'!$E$11:$I$11");
  book.SetDefinedName("StartArea", "'Page 4'!$D$11");
}

class ReportBuildersTest : public ::testing::Test, public ReportFixture {
 protected:
  void Build(const Inputs& inputs) {
    for (const auto& [name, value] : inputs) Set(name, value);
    prompt.messages.clear();
    generator.CreateReport(app);
    ASSERT_TRUE(prompt.messages.empty()) << prompt.messages.front().text;
  }
  // The inputs that the cases change, back at the default project's (h/w 0.6, no Note 5).
  void Reset() {
    for (const auto& [name, value] : Inputs{{"B124", 0},
                                            {"System", 0},
                                            {"Structure", 0},
                                            {"Figure", 1},
                                            {"Table", 0},
                                            {"GustType", 0},
                                            {"Table66RoofType", 1},
                                            {"HasParapet", 1},
                                            {"AspectRatio", 4},
                                            {"Width", 100}})
      Set(name, value);
  }
  bool Hidden(int sheet, int row) {
    Report().SetActiveSheet(sheet);
    return Report().RowHidden(row);
  }

  // The default project: 60 ft by the standard ladder, the highest interval first.
  const int rows_ = geometry::CountHeightRows(60, 0, "");
  const int lastRow_ = 11 + rows_ - 1;
};

// The builders without height rows: what each leaves of a five-page template. Without a
// parapet the cladding figures drop page 4; the steep roof rows of the simplified procedure
// go at 25 degrees and below, the Case C rows of signs below a B/s of 2.
TEST_F(ReportBuildersTest, PageBuildersDeleteHideAndClear) {
  struct Rows {
    int sheet = 0, first = 0, last = 0;  // sheet 0: no rows hidden
  };
  struct Case {
    const char* name;
    TemplateContainer container;
    Inputs in;
    bool pageFourKept = true;
    Rows hidden = {};
    bool parapetKept = true;     // the IncludeParapet block of page 3
    bool claddingLines = false;  // the system lines for components and cladding
  };
  const Rows caseC = {3, 28, 39};
  const std::vector<Case> cases = {
      {"Figure610", D, {{"HasParapet", 0}}, true, {}, false},
      {"Figure610", D, {{"HasParapet", 1}}},
      {"Figure611B", D, {{"System", 1}, {"Figure", 3}, {"HasParapet", 0}}, false},
      {"Figure613", D, {{"System", 1}, {"Figure", 4}}},
      {"Figure614A", D, {{"System", 1}, {"Figure", 5}, {"HasParapet", 0}}, false},
      {"Figure614B", D, {{"System", 1}, {"Figure", 6}}},
      {"Figure68B", F, {{"System", 1}, {"Structure", 2}, {"Figure", 8}}, true, {}, true, true},
      {"SimpMFWRS", F, {{"B124", 1}, {"SimplifiedAngle", 25}}, true, {2, 45, 59}},
      {"SimpMFWRS", F, {{"B124", 1}, {"SimplifiedAngle", 25.5}}},
      {"Fig620", A, {{"System", 2}, {"Table", 3}, {"AspectRatio", 1.99}}, true, caseC},
      {"Fig620",
       F,
       {{"System", 2}, {"Table", 3}, {"GustType", 1}, {"AspectRatio", 1.99}},
       true,
       caseC},
      {"Fig620",
       B,
       {{"System", 2}, {"Table", 3}, {"GustType", 2}, {"AspectRatio", 0.5}},
       true,
       caseC},
      {"Fig620", A, {{"System", 2}, {"Table", 3}, {"AspectRatio", 2}}},
  };
  for (std::size_t i = 0; i < cases.size(); ++i) {
    const Case& c = cases[i];
    SCOPED_TRACE(std::string(c.name) + ", case " + std::to_string(i));
    auto book = PagesTemplate(c.name, 5);
    book->SetActiveSheet(3);
    book->SetCellText(40, 1, "Parapet");
    book->SetDefinedName("IncludeParapet", "'Page 3'!$A$40:$B$41");
    for (int sheet = 2; sheet <= 4; ++sheet) {
      book->SetActiveSheet(sheet);
      for (int row = 20; row <= 70; ++row) book->SetCellNumber(row, 2, row);
    }
    Install(*book, c.container);
    Reset();
    Build(c.in);
    ASSERT_EQ(generator.TemplateName(), c.name);

    std::vector<std::string> pages = {"Page 1", "Page 2", "Page 3", "Page 4", "Page 5"};
    if (!c.pageFourKept) pages.erase(pages.begin() + 3);
    ASSERT_EQ(Report().SheetCount(), static_cast<int>(pages.size()));
    for (int sheet = 1; sheet <= Report().SheetCount(); ++sheet)
      EXPECT_EQ(Cell(sheet, 2, 1), T(pages[sheet - 1].c_str()));
    EXPECT_EQ(Cell(1, 14, 2), T(c.claddingLines ? "Components" : "Main Wind-Force"));
    EXPECT_EQ(Cell(1, 15, 2), T(c.claddingLines ? "and Cladding" : "Resisting System"));
    EXPECT_EQ(Cell(3, 40, 1).IsEmpty(), !c.parapetKept);
    for (int sheet = 2; sheet <= Report().SheetCount(); ++sheet)
      for (int row = 20; row <= 70; ++row) {
        const Rows& h = c.hidden;
        const bool hidden = sheet == h.sheet && row >= h.first && row <= h.last;
        EXPECT_EQ(Hidden(sheet, row), hidden) << "sheet " << sheet << ", row " << row;
      }
  }
}

// A template that lacks a name its builder reaches stops the build, naming both.
TEST_F(ReportBuildersTest, TemplateWithoutANameItsBuilderNeedsIsRefused) {
  struct Case {
    const char* name;
    TemplateContainer container;
    Inputs in;
    const char* missing;
  };
  const std::vector<Case> cases = {
      {"Figure610", D, {{"HasParapet", 0}}, "IncludeParapet"},
      {"figure616A", G, {{"System", 1}, {"Structure", 2}, {"Figure", 1}}, "SystemLine1"},
      {"Figure611B", D, {{"System", 1}, {"Figure", 3}, {"HasParapet", 0}}, "ParapetPage"},
      {"SimpMFWRS", F, {{"B124", 1}, {"SimplifiedAngle", 20}}, "SteepRoofRows"},
      {"Fig620",
       B,
       {{"System", 2}, {"Table", 3}, {"GustType", 2}, {"AspectRatio", 1}},
       "CaseCRows"},
  };
  for (const Case& c : cases) {
    Install(*BarePagesTemplate(c.name, 5), c.container);
    Reset();
    for (const auto& [name, value] : c.in) Set(name, value);
    try {
      generator.BuildReport(app);
      ADD_FAILURE() << c.name << " built without " << c.missing;
    } catch (const wb::FacilityError& error) {
      EXPECT_EQ(error.Number(), wb::errc::kUnknownName) << c.name;
      EXPECT_EQ(std::string(error.what()), std::string("The report template ") + c.name +
                                               " has no name " + c.missing +
                                               ", which its builder needs");
    }
  }
}

// Figure 6-17: two pressure tables without areas, one on page 3 and one after the parapet
// page, which goes when there are no parapets; the positive table goes up to 10 degrees.
TEST_F(ReportBuildersTest, Figure617RepeatsTwoTablesAndDropsTheParapetPage) {
  struct Case {
    double angle;
    double parapets;
    bool addTableKept;
    std::vector<std::string> sheetNames;
    std::vector<std::string> pages;  // the template's pages that stay
    int secondTableSheet;
  };
  const std::vector<Case> cases = {
      {10.01,
       1,
       true,
       {"Page 1", "Page 2", "Page 3", "Parapet", "Page 5", "Page 6"},
       {"Page 1", "Page 2", "Page 3", "Parapet", "Page 5", "Page 6"},
       5},
      {10,
       0,
       false,
       {"Page 1", "Page 2", "Page 3", "Page 4", "Page 5"},
       {"Page 1", "Page 2", "Page 3", "Page 5", "Page 6"},
       4},
  };
  auto book = BarePagesTemplate("Figure617", 6);
  book->SetSheetName(4, "Parapet");
  book->SetDefinedName("ParapetPage", "Parapet!$A$1");
  book->SetActiveSheet(4);
  book->SetCellText(2, 1, "Parapet");
  AddPressuresTable(*book, 3, "Start", "TopRow");
  AddPressuresTable(*book, 5, "Start1", "TopRow1");
  book->SetActiveSheet(3);
  book->SetCellText(40, 1, "Additional");
  book->SetDefinedName("AddTable", "'Page 3'!$A$40:$B$41");
  Install(*book, D);
  for (const Case& c : cases) {
    Reset();
    Build(
        {{"System", 1}, {"Structure", 1}, {"Figure68Angle", c.angle}, {"HasParapets", c.parapets}});
    ASSERT_EQ(generator.TemplateName(), "Figure617");
    ASSERT_EQ(Report().SheetCount(), static_cast<int>(c.pages.size())) << c.angle;
    for (int sheet = 1; sheet <= Report().SheetCount(); ++sheet) {
      EXPECT_EQ(Report().SheetName(sheet), c.sheetNames[sheet - 1]) << c.angle;
      EXPECT_EQ(Cell(sheet, 2, 1), T(c.pages[sheet - 1].c_str())) << c.angle;
    }
    EXPECT_EQ(Cell(1, 14, 2), T("Main Wind-Force"));
    EXPECT_EQ(Cell(3, 40, 1).IsEmpty(), !c.addTableKept) << c.angle;
    for (const int sheet : {3, c.secondTableSheet}) {
      EXPECT_EQ(Cell(sheet, 11, 3), N(60)) << "sheet " << sheet;
      EXPECT_EQ(Cell(sheet, lastRow_, 2), N(0));
      EXPECT_EQ(Cell(sheet, lastRow_, 4), N(30));
      EXPECT_TRUE(Cell(sheet, lastRow_ + 1, 4).IsEmpty());
      EXPECT_EQ(Report().GetCellStyle(lastRow_, 2).bottom.style, 1);
      EXPECT_TRUE(Cell(sheet, lastRow_ + 4, 2).IsEmpty()) << "no summary without areas";
    }
  }
}

// Figures 6-21 to 6-23 and the special case: a pressures table with its input list, and one
// forces table with areas and the summary block.
TEST_F(ReportBuildersTest, TwoTableBuildersFillTheirListAndAreas) {
  struct Case {
    const char* name;
    TemplateContainer container;
    int table;
    int gustType;
    const char* listTarget;  // none for Figure 6-22
    std::vector<double> list;
    std::vector<double> areas;  // empty: the outline's, 50 ft wide
  };
  const std::vector<double> ratios = {0.1, 0.15, 0.2, 0.25, 0.3, 0.35, 0.4};
  const std::vector<double> special = {100, 200, 300, 400, 500, 600, 700};
  const std::vector<Case> cases = {
      {"Figure619B", B, 4, 2, "StartDiam", {10, 20, 30, 40, 50, 60, 70}, {}},
      {"Figure621C", F, 5, 1, nullptr, {}, {}},
      {"Figure622A", A, 6, 0, "RatioE", ratios, {}},
      {"Figure622B", B, 6, 2, "RatioE", ratios, {}},
      {"TableSpecial", D, 7, 0, "CfFactors", {1.2, 1.3, 1.4, 1.5, 1.6, 1.7, 1.8}, special},
      {"TableSpecialD", F, 7, 1, "CfFactors", {2, 2, 2, 2, 2, 2, 2}, special},
      {"TableSpecialB", D, 7, 2, "CfFactors", {0.5, 0.5, 0.5, 0.5, 0.5, 0.5, 0.5}, special},
  };
  const auto commaList = [](const std::vector<double>& values) {
    std::string text;
    for (const double value : values) text += wb::FormatShortest(value) + ",";
    return text;
  };
  for (const Case& c : cases) {
    auto book = PagesTemplate(c.name, 4);
    AddPressuresTable(*book, 3, "Start", "TopRow");
    if (c.listTarget != nullptr) book->SetDefinedName(c.listTarget, "'Page 3'!$F$11");
    AddForcesTable(*book);
    Install(*book, c.container);
    Reset();
    wb::WriteNamedText(Project(), "Table67Dia", "1,1,1,1,1,1,1");
    wb::WriteNamedText(Project(), "Table610Ratios", "1,1,1,1,1,1,1");
    wb::WriteNamedText(Project(), "TableSpecialCoefficients", "1,1,1,1,1,1,1");
    const char* listName = c.table == 4   ? "Table67Dia"
                           : c.table == 6 ? "Table610Ratios"
                                          : "TableSpecialCoefficients";
    wb::WriteNamedText(Project(), listName, commaList(c.list));
    wb::WriteNamedText(Project(), "TableSpecialProjAreas", commaList(special));
    Build({{"System", 2}, {"Table", c.table}, {"GustType", c.gustType}});
    ASSERT_EQ(generator.TemplateName(), c.name);
    ASSERT_EQ(Report().SheetCount(), 4) << c.name;

    for (int i = 0; i < rows_; ++i) {
      const wb::Value listed = c.list.empty() ? wb::Value() : N(c.list[i]);
      EXPECT_EQ(Cell(3, 11 + i, 6), listed) << c.name << ", row " << 11 + i;
      if (!c.areas.empty()) {
        EXPECT_EQ(Cell(4, 11 + i, 4), N(c.areas[i])) << c.name;
      }
      EXPECT_EQ(Cell(3, 11 + i, 4), Cell(4, 11 + i, 5)) << "the forces row reads its own row";
    }
    if (c.areas.empty()) {
      EXPECT_NEAR(Cell(4, lastRow_, 4).AsNumber(), 750, 0.5) << c.name;
    }
    const int s = lastRow_ + 4;
    EXPECT_EQ(Cell(4, s, 2), T("Total Area")) << c.name;
    EXPECT_NEAR(Cell(4, s, 4).AsNumber(), c.areas.empty() ? 3000 : 2800, 0.5) << c.name;
    EXPECT_EQ(Cell(4, s + 1, 2), T("Base Shear"));
    EXPECT_EQ(Formula(4, s + 1, 4), "$G$" + std::to_string(lastRow_));
    EXPECT_EQ(Cell(4, s + 1, 4), Cell(4, lastRow_, 7));
    EXPECT_EQ(Formula(4, s + 2, 5), "[WindData]sheet3!U_Str_Moment");
    // The closing line starts two columns left of the sample row: B on page 3, C on page 4.
    EXPECT_EQ(Report().GetCellStyle(lastRow_, 3).bottom.style, 1);
    Report().SetActiveSheet(3);
    EXPECT_EQ(Report().GetCellStyle(lastRow_, 2).bottom.style, 1);
  }
}

}  // namespace
}  // namespace gustline::report
