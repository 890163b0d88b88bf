#include <gtest/gtest.h>

#include "ErrorNumber.h"
#include "core/workbook/model/Workbook.h"

namespace gustline::wb {
namespace {

std::vector<std::string> SheetNames(const Workbook& book) {
  std::vector<std::string> names;
  for (int i = 1; i <= book.SheetCount(); ++i) names.push_back(book.SheetName(i));
  return names;
}

TEST(Sheets, AddRenameFindAndSelect) {
  Workbook book;
  EXPECT_EQ(book.AddSheet("Sheet2"), 2);
  EXPECT_EQ(book.AddSheet("Page 1"), 3);
  EXPECT_EQ(book.FindSheet("PAGE 1"), 3);
  EXPECT_EQ(book.FindSheet("Page 2"), 0);
  book.SetSheetName(3, "Page 4");
  EXPECT_EQ(book.SheetName(3), "Page 4");
  EXPECT_EQ(ErrorNumberOf([&] { book.SetSheetName(2, "sheet1"); }), errc::kBadArgument);
  EXPECT_EQ(ErrorNumberOf([&] { book.AddSheet(""); }), errc::kBadArgument);
  EXPECT_EQ(ErrorNumberOf([&] { book.SheetName(4); }), errc::kBadSheet);
}

TEST(Sheets, DeleteSheetsKeepsTheActiveSheetWhereItCan) {
  const struct {
    int active, first, count, activeAfter;
    std::vector<std::string> names;
  } cases[] = {{5, 4, 1, 4, {"S1", "S2", "S3", "S5"}},
               {2, 4, 1, 2, {"S1", "S2", "S3", "S5"}},
               {4, 4, 1, 4, {"S1", "S2", "S3", "S5"}},
               {5, 4, 2, 3, {"S1", "S2", "S3"}},
               {1, 1, 2, 1, {"S3", "S4", "S5"}}};
  for (const auto& c : cases) {
    Workbook book;
    book.SetSheetName(1, "S1");
    for (int i = 2; i <= 5; ++i) book.AddSheet("S" + std::to_string(i));
    book.SetActiveSheet(c.active);
    book.DeleteSheets(c.first, c.count);
    EXPECT_EQ(SheetNames(book), c.names) << c.first << "," << c.count;
    EXPECT_EQ(book.ActiveSheet(), c.activeAfter) << c.first << "," << c.count;
  }
}

TEST(Sheets, DeleteSheetsRefusesBadRanges) {
  Workbook book;
  book.AddSheet("Sheet2");
  EXPECT_EQ(ErrorNumberOf([&] { book.DeleteSheets(3, 1); }), errc::kBadSheet);
  EXPECT_EQ(ErrorNumberOf([&] { book.DeleteSheets(2, 2); }), errc::kBadSheet);
  EXPECT_EQ(ErrorNumberOf([&] { book.DeleteSheets(1, 2); }), errc::kBadArgument);
  EXPECT_EQ(book.SheetCount(), 2);
}

TEST(Sheets, AFormulaOnADeletedSheetReadsRef) {
  Workbook book;
  book.AddSheet("Sheet2");
  const std::uint32_t id = book.GetSheet(2).Id();
  book.SetActiveSheet(2);
  book.SetCellNumber(1, 1, 5);
  book.SetActiveSheet(1);
  book.SetCellFormula(1, 1, "Sheet2!A1+1");
  EXPECT_EQ(book.CellNumber(1, 1), 6);
  book.DeleteSheets(2, 1);
  EXPECT_EQ(book.SheetById(id), nullptr);
  EXPECT_EQ(book.SheetIndexById(id), -1);
  book.Recalc();
  EXPECT_EQ(book.CellValue(1, 1), Value::Error(ErrorCode::Ref));
  EXPECT_EQ(book.CellFormula(1, 1), "#REF!+1");
}

TEST(Names, WalkInDefinitionOrderWithoutRegardToCase) {
  Workbook book;
  book.SetDefinedName("WindSpeed", "=Sheet1!$B$2");
  book.SetDefinedName("Height", "Sheet1!$B$3");
  book.SetDefinedName("WINDSPEED", "Sheet1!$B$4");
  EXPECT_EQ(book.NameCount(), 2);
  EXPECT_EQ(book.NameAt(1), "WindSpeed");
  EXPECT_EQ(book.NameAt(2), "Height");
  EXPECT_EQ(book.DefinedName("windspeed"), "Sheet1!$B$4");
  EXPECT_FALSE(book.DefinedName("Exposure").has_value());
  EXPECT_EQ(ErrorNumberOf([&] { book.NameAt(3); }), errc::kBadArgument);
  EXPECT_EQ(ErrorNumberOf([&] { book.SetDefinedName("Bad", "Sheet1!$B$2+*"); }),
            errc::kFormulaSyntax);
  EXPECT_EQ(book.NameCount(), 2);
}

TEST(Names, FollowARenamedSheet) {
  Workbook book;
  book.AddSheet("Sheet2");
  book.SetDefinedName("Start", "Sheet2!$B$15");
  book.SetSheetName(2, "Page 2");
  book.SetSelection("Start");
  EXPECT_EQ(book.ActiveSheet(), 2);
  EXPECT_EQ(book.Selection(), "$B$15");
  EXPECT_EQ(book.ResolveReference("start"), (std::pair{2, Area{15, 2, 15, 2}}));
}

TEST(ClearAll, LeavesOneEmptySheetAndNoNames) {
  Workbook book("WindData");
  book.AddSheet("Sheet2");
  book.SetCellNumber(2, 2, 1);
  book.SetNumberFormat("0.00");
  book.SetDefinedName("Height", "Sheet1!$B$2");
  book.ClearAll();
  EXPECT_EQ(SheetNames(book), std::vector<std::string>{"Sheet1"});
  EXPECT_EQ(book.LastRow(), 0);
  EXPECT_EQ(book.NameCount(), 0);
  EXPECT_EQ(book.Styles().Size(), 1u);
  EXPECT_EQ(book.BookName(), "WindData");
  EXPECT_EQ(ErrorNumberOf([&] { book.SetSelection("Height"); }), errc::kUnknownName);
}

}  // namespace
}  // namespace gustline::wb
