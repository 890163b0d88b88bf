#include <gtest/gtest.h>

#include <memory>

#include "core/workbook/formula/Formula.h"
#include "core/workbook/model/Workbook.h"
#include "core/workbook/recalc/Recalc.h"

namespace gustline::wb {
namespace {

Value N(double number) {
  return Value::Number(number);
}

// A project book with inputs on Sheet1 and a name on Sheet3, as reports link to it.
std::unique_ptr<Workbook> MakeProject(const char* name = "WindData") {
  auto project = std::make_unique<Workbook>(name);
  project->AddSheet("Sheet2");
  project->AddSheet("Sheet3");
  project->SetCellNumber(24, 2, 30);
  project->SetDefinedName("Height", "Sheet1!$B$24");
  project->SetActiveSheet(3);
  project->SetCellFormula(5, 1, "Sheet1!B24*2");
  project->SetActiveSheet(1);
  project->SetDefinedName("U_Str_Force", "Sheet3!$A$5");
  return project;
}

TEST(LinksTest, LinksReadAnotherOpenBookByNameOrCell) {
  auto project = MakeProject();
  Workbook report("ServerSS");
  report.SetCellFormula(1, 1, "[WindData]Sheet1!Height");
  report.SetCellFormula(2, 1, "[winddata]sheet3!U_Str_Force");
  report.SetCellFormula(3, 1, "[WindData]Sheet1!$B$24+1");
  report.SetCellFormula(4, 1, "[WindData]Sheet2!Height");
  EXPECT_EQ(report.CellValue(1, 1), N(30));
  EXPECT_EQ(report.CellValue(2, 1), N(60));
  EXPECT_EQ(report.CellValue(3, 1), N(31));
  EXPECT_EQ(report.CellValue(4, 1), N(30));
  EXPECT_EQ(report.CellFormula(2, 1), "[winddata]sheet3!U_Str_Force");

  // The report follows the project at its next calculation.
  project->SetCellNumber(24, 2, 40);
  EXPECT_EQ(report.CellValue(1, 1), N(40));
  EXPECT_EQ(report.CellValue(2, 1), N(80));
}

// A change marks for calculation the books that read the changed book, through a cell or a
// name, and no other.
TEST(LinksTest, ChangeMarksOnlyTheBooksLinkedToIt) {
  auto project = MakeProject();
  Workbook byCell("ByCell");
  byCell.SetCellFormula(1, 1, "[WindData]Sheet1!$B$24+1");
  Workbook byName("ByName");
  byName.SetDefinedName("Top", "[WindData]Sheet1!Height");
  byName.SetCellFormula(1, 1, "Top*2");
  Workbook apart("Apart");
  apart.SetCellFormula(1, 1, "1+1");
  EXPECT_EQ(byCell.CellValue(1, 1), N(31));
  EXPECT_EQ(byName.CellValue(1, 1), N(60));
  EXPECT_EQ(apart.CellValue(1, 1), N(2));

  project->SetCellNumber(24, 2, 40);
  EXPECT_TRUE(RecalcState::Of(byCell).LinkChanged());
  EXPECT_TRUE(RecalcState::Of(byName).LinkChanged());
  EXPECT_FALSE(RecalcState::Of(apart).dirty || RecalcState::Of(apart).LinkChanged());
  EXPECT_EQ(byCell.CellValue(1, 1), N(41));
  EXPECT_EQ(byName.CellValue(1, 1), N(80));
  EXPECT_FALSE(RecalcState::Of(byCell).LinkChanged());

  // Through a name of a book that links on, however far.
  Workbook middle("Middle");
  middle.SetDefinedName("Top", "[WindData]Sheet1!$B$24");
  Workbook far("Far");
  far.SetCellFormula(1, 1, "[Middle]Sheet1!Top+1");
  EXPECT_EQ(far.CellValue(1, 1), N(41));
  project->SetCellNumber(24, 2, 50);
  EXPECT_EQ(far.CellValue(1, 1), N(51));
}

// A book that takes another's content keeps the name slots that links were bound to since.
TEST(LinksTest, CopiedContentKeepsTheSlotsThatLinksAreBoundTo) {
  Workbook source("CopySource");
  source.SetDefinedName("First", "Sheet1!$A$1");
  Workbook book("CopyTarget");
  book.CopyContentOf(source);
  Workbook report("CopyReport");
  report.SetCellFormula(1, 1, "[CopyTarget]Sheet1!Late");
  book.CopyContentOf(source);
  book.SetDefinedName("Other", "Sheet1!$A$2");
  book.SetDefinedName("Late", "Sheet1!$A$3");
  book.SetCellNumber(2, 1, 7);
  book.SetCellNumber(3, 1, 9);
  EXPECT_EQ(report.CellValue(1, 1), N(9));
}

TEST(LinksTest, UnboundLinkKeepsItsCachedValueUntilReentered) {
  Workbook report("Report");
  report.SetCellFormula(1, 1, "[LateBook]Sheet1!Height");
  const FormulaHost host{&report, 0, {1, 1}};
  EXPECT_TRUE(HasUnboundLink(*ParseFormula("[LateBook]Sheet1!Height", host)));
  report.GetSheet(1).Find(1, 1)->value = N(12);
  report.Recalc();
  EXPECT_EQ(report.CellValue(1, 1), N(12));

  auto late = MakeProject("LateBook");
  report.Recalc();
  EXPECT_EQ(report.CellValue(1, 1), N(12));
  report.SetCellFormula(1, 1, report.CellFormula(1, 1));
  EXPECT_EQ(report.CellValue(1, 1), N(30));
}

TEST(LinksTest, ClosedBookGivesRef) {
  auto project = MakeProject();
  Workbook report("Report");
  report.SetCellFormula(1, 1, "[WindData]Sheet1!Height");
  EXPECT_EQ(report.CellValue(1, 1), N(30));
  project.reset();
  report.Recalc();
  EXPECT_EQ(report.CellValue(1, 1), Value::Error(ErrorCode::Ref));
}

TEST(LinksTest, BracketWithTheBooksOwnNameRefersToItself) {
  Workbook book("Figure66A(D)");
  book.AddSheet("Page 2");
  book.SetActiveSheet(2);
  book.SetCellNumber(3, 3, 9);
  book.SetActiveSheet(1);
  book.SetDefinedName("Gust", "'Page 2'!$C$3");
  book.SetCellFormula(1, 1, "'[Figure66A(D)]Page 2'!C3+[figure66a(d)]Sheet1!Gust");
  EXPECT_EQ(book.CellValue(1, 1), N(18));
  // A link to itself is a dependency like any other reference.
  book.SetAutoRecalc(false);
  book.SetActiveSheet(2);
  book.SetCellFormula(3, 3, "4");
  book.SetActiveSheet(1);
  book.Recalc();
  EXPECT_EQ(book.CellValue(1, 1), N(8));
}

TEST(LinksTest, BooksLinkedBothWaysSettleWithoutLooping) {
  Workbook first("First");
  Workbook second("Second");
  first.SetCellNumber(1, 1, 2);
  second.SetCellFormula(1, 1, "[First]Sheet1!A1*10");
  first.SetCellFormula(1, 2, "[Second]Sheet1!A1+1");
  EXPECT_EQ(first.CellValue(1, 2), N(21));
  first.SetCellNumber(1, 1, 3);
  EXPECT_EQ(second.CellValue(1, 1), N(30));
  EXPECT_EQ(first.CellValue(1, 2), N(31));
}

}  // namespace
}  // namespace gustline::wb
