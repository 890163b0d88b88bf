// The builder: blocks land at their anchors with their parameters, and faults in the
// sources stop the build with their file and line.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <tuple>

#include "BookAssembler.h"
#include "core/workbook/model/NamedCells.h"
#include "core/workbook/model/Workbook.h"
#include "core/workbook/value/FacilityError.h"

namespace gustline::books {
namespace {

namespace fs = std::filesystem;

class BookAssemblerTest : public ::testing::Test {
 protected:
  void SetUp() override {
    dir_ =
        fs::temp_directory_path() /
        ("wbbuild-" + std::string(::testing::UnitTest::GetInstance()->current_test_info()->name()));
    fs::create_directories(dir_);
  }
  void TearDown() override { fs::remove_all(dir_); }

  void Write(const std::string& file, const std::string& text) {
    std::ofstream(dir_ / file) << text;
  }
  // Assembles book.book of the test folder and checks its formulas.
  void Assemble() {
    BookAssembler assembler(book_);
    assembler.ReadBook(dir_ / "book.book");
    assembler.CheckFormulas();
  }
  // The message of the fault that stops the build, empty when it builds.
  std::string Fault() {
    try {
      Assemble();
    } catch (const SourceError& error) {
      return error.what();
    }
    return {};
  }

  fs::path dir_;
  wb::Workbook book_{"Test"};
};

TEST_F(BookAssemblerTest, BlockLandsAtItsAnchorWithReferencesFollowing) {
  Write("book.book",
        "book Test\nsheet Main\nsheet Calc\n"
        "include pair at Calc!C10 with FACTOR=3 TOTAL=Total\n"
        "include pair at Calc!C20 with FACTOR=5\n");
  Write("pair.cells",
        "param FACTOR\nparam TOTAL=\n"
        "grid A1\n| 2 | =A1*{FACTOR} |\n"
        "rows\n| B2 | Total | {TOTAL} | formula | =A1+B1 | note |\n");
  Assemble();

  EXPECT_EQ(book_.SheetName(2), "Calc");
  book_.SetActiveSheet(2);
  EXPECT_EQ(book_.CellFormula(10, 4), "C10*3");
  EXPECT_EQ(book_.CellFormula(21, 4), "C20+D20");
  EXPECT_EQ(book_.CellText(11, 3), "Total");
  EXPECT_EQ(book_.CellText(11, 5), "note");
  EXPECT_EQ(book_.DefinedName("Total"), "Calc!$D$11");
  EXPECT_EQ(book_.NameCount(), 1);
  book_.Recalc();
  EXPECT_EQ(wb::ReadNamedNumber(book_, "Total"), 8);
  book_.SetActiveSheet(2);
  EXPECT_EQ(book_.CellNumber(21, 4), 12);
}

// A table kept as data: the lines of one block, row keys down, column keys across, whatever
// the order of the lines; a damaged file stops the build at the directive.
TEST_F(BookAssemblerTest, TableComesFromItsDataFile) {
  Write("book.book",
        "book Test\nsheet Main\ninclude block at Main!B3 with TITLE=\"Zone A, Case 1\"\n");
  Write("block.cells",
        "param TITLE\ntable A2 speeds.csv angle speed psf where block=\"{TITLE}\" case=1\n");
  Write("speeds.csv",
        "block,case,angle,speed,psf\n"
        "\"Zone A, Case 1\",1,5,85,11.5\n\"Zone A, Case 1\",1,5,90,12.8\n"
        "\"Zone A, Case 1\",2,5,90,99\nOther,1,5,90,99\n"
        "\"Zone A, Case 1\",1,10,90,14.5\n\"Zone A, Case 1\",1,10,85,-12.9\n");
  Assemble();
  book_.SetActiveSheet(1);
  const double expected[3][3] = {{0, 85, 90}, {5, 11.5, 12.8}, {10, -12.9, 14.5}};
  for (int r = 0; r < 3; ++r) {
    for (int c = 0; c < 3; ++c) {
      if (r + c == 0) continue;
      EXPECT_EQ(book_.CellNumber(4 + r, 2 + c), expected[r][c]) << r << "," << c;
    }
  }
  EXPECT_TRUE(book_.CellText(4, 2).empty());

  const std::pair<const char*, const char*> faults[] = {
      {"block,case,angle,speed,psf\nOther,1,5,90,1\n", "no line of"},
      {"block,case,angle,speed,psf\n\"Zone A, Case 1\",1,5,85,1\n\"Zone A, Case 1\",1,10,90,2\n",
       "has no value for angle 5, speed 90"},
      {"block,case,angle,speed,psf\n\"Zone A, Case 1\",1,5,90,1\n\"Zone A, Case 1\",1,5,90,2\n",
       "speeds.csv line 3 gives a value that an earlier line gave"},
      {"block,case,angle,speed,psf\n\"Zone A, Case 1\",1,5,90,x\n", "line 2: 'x' is not a number"},
      {"block,case,angle,speed\n", "has no column 'psf'"},
      {"block,case,angle,speed,psf\nOther,1\n", "line 2 has 2 fields, not 5"},
      {"block,case,angle,speed,psf\n\"Zone A, Case 1\",1,10,90,1\n\"Zone A, Case 1\",1,5,90,2\n",
       "do not ascend"},
  };
  for (const auto& [csv, expectedFault] : faults) {
    book_.ClearAll();
    Write("speeds.csv", csv);
    const std::string fault = Fault();
    EXPECT_NE(fault.find("block.cells:2: error: "), std::string::npos) << fault;
    EXPECT_NE(fault.find(expectedFault), std::string::npos) << fault;
  }
}

struct FaultCase {
  const char* what;
  const char* block;     // block.cells, included at Main!A1
  const char* include;   // the rest of the include line
  const char* expected;  // the start of the message
};

TEST_F(BookAssemblerTest, FaultsNameTheirFileAndLine) {
  const FaultCase cases[] = {
      {"formula that does not parse", "grid A1\n| 1 |\n| =A1+ |\n", "", "block.cells:3: error:"},
      {"unknown function", "grid A1\n| =SQR(4) |\n", "", "block.cells:2: error: unknown function"},
      {"undefined name", "rows\n| B1 | x | - | formula | =Nowhere*2 |\n", "",
       "block.cells:2: error: name 'Nowhere' is not defined"},
      {"cell written twice", "grid A1\n| 1 | 2 |\nrows\n| B1 | x | - | number | 3 |\n", "",
       "block.cells:4: error: cell Main!A1 is already written at"},
      {"name defined twice",
       "rows\n| B1 | x | Twice | number | 1 |\n| B2 | y | TWICE | number | 2 |\n", "",
       "block.cells:3: error: name 'TWICE' is already defined at"},
      {"number that does not read", "rows\n| B1 | x | - | number | 1,5 |\n", "",
       "block.cells:2: error: '1,5' is not a number"},
      {"missing parameter", "param NEED\ngrid A1\n| {NEED} |\n", "",
       "book.book:3: error: block 'block' needs the parameter 'NEED'"},
      {"unknown parameter", "grid A1\n| 1 |\n", " with OTHER=1",
       "book.book:3: error: block 'block' has no parameter 'OTHER'"},
      {"substitution without parameter", "grid A1\n| {NONE} |\n", "",
       "block.cells:2: error: no parameter 'NONE'"},
      {"row outside a section", "| 1 |\n", "", "block.cells:1: error: a table row outside"},
      {"block that includes itself", "include block at A2\n", "",
       "block.cells:1: error: includes nest"},
      {"unknown style key", "style A1:B2 bolder\n", "", "block.cells:1: error: unknown style key"},
      {"line style out of range", "style A1 box=7\n", "",
       "block.cells:1: error: 'box' is a line style from 0 to 6"},
      {"colour without hash", "style A1 fill=FF0000\n", "",
       "block.cells:1: error: 'fill' is a colour #RRGGBB"},
      {"rows upside down", "hide 9:5\n", "", "block.cells:1: error: '9:5' is not rows"},
      {"control bytes quoted", "rows\n| B1 | x | - | number | 1\x1b[2J |\n", "",
       "block.cells:2: error: '1\\x1b[2J' is not a number"},
  };
  for (const auto& c : cases) {
    book_.ClearAll();
    Write("book.book",
          std::string("book Test\nsheet Main\ninclude block at Main!A1") + c.include + "\n");
    Write("block.cells", c.block);
    const std::string fault = Fault();
    const auto at = fault.find(c.expected);
    EXPECT_NE(at, std::string::npos) << c.what << ": " << fault;
    EXPECT_EQ(fault.rfind(dir_.string(), 0), 0u) << c.what << ": " << fault;
  }
}

// Styles, hidden rows, widths and print setup as the program reads them back from the file.
TEST_F(BookAssemblerTest, LayoutSurvivesTheNativeFile) {
  fs::create_directories(dir_ / "common");
  Write("book.book",
        "book Test\nlibrary common\ndefault-font \"Times New Roman\" 10\n"
        "sheet Page 1\nsheet Page 2\n"
        "include heading at Page 1!A1 with TITLE=\"Design Wind Pressure, p\" NOTE=\n"
        "include heading at 'Page 2'!A11 with TITLE=Forces NOTE=\"\"\n"
        "style Page 1!B4:D6 format=\"0.000\" border=1\n"
        "style Page 1!B4:D6 box=2 align=right\n"
        "style 'Page 1'!C5 bold=0 fill=#FFFF00\n"
        "hide Page 2!45:59\n"
        "columns * A=30\ncolumns Page 2 B=12\n"
        "page * margins=0.5,0,0.75,0.5 footer=\"&A\" fit=1,1\n"
        "page Page 2 landscape scale=80\n");
  Write("common/heading.cells",
        "param TITLE\nparam NOTE=x\n"
        "grid A1\n| \"{TITLE}\" |\n| \"[{NOTE}]\" |\n"
        "style A1 bold size=14\nhide 3:4\n");
  Assemble();
  const auto file = (dir_ / "book.gwb").string();
  book_.WriteWorkbook(file, wb::FileType::Native);
  wb::Workbook read("Other");
  read.ReadWorkbook(file);

  ASSERT_EQ(read.FindSheet("Page 2"), 2);
  const wb::Sheet& page1 = read.GetSheet(1);
  const wb::Sheet& page2 = read.GetSheet(2);
  read.SetActiveSheet(1);
  EXPECT_EQ(read.CellText(1, 1), "Design Wind Pressure, p");
  EXPECT_EQ(read.CellText(2, 1), "[]");
  read.SetActiveSheet(2);
  EXPECT_EQ(read.CellText(11, 1), "Forces");
  EXPECT_EQ(page1.HiddenRows(), (std::vector<int>{3, 4}));
  EXPECT_EQ(page2.HiddenRows(),
            (std::vector<int>{13, 14, 45, 46, 47, 48, 49, 50, 51, 52, 53, 54, 55, 56, 57, 58, 59}));
  EXPECT_EQ(page1.ColumnWidth(1), 30);
  EXPECT_EQ(page2.ColumnWidth(1), 30);
  EXPECT_EQ(page2.ColumnWidth(2), 12);
  EXPECT_EQ(page1.ColumnWidth(2), wb::Sheet::kDefaultColumnWidth);

  const wb::PrintSetup& print1 = page1.Print();
  const wb::PrintSetup& print2 = page2.Print();
  EXPECT_EQ(
      std::tuple(print1.leftMargin, print1.rightMargin, print1.topMargin, print1.bottomMargin),
      std::tuple(0.5, 0.0, 0.75, 0.5));
  EXPECT_EQ(std::tuple(print1.footer, print1.fitToPages, print1.landscape),
            std::tuple("&A", true, false));
  EXPECT_EQ(std::tuple(print2.footer, print2.fitToPages, print2.landscape, print2.scale),
            std::tuple("&A", false, true, 80));

  // Borders of B4:D6: thin on each cell, medium on the outline; C5 lost its bold only.
  struct StyleCase {
    int row, col;
    int left, right, top, bottom;
    bool bold;
    std::uint32_t fill;
  };
  const StyleCase cases[] = {{4, 2, 2, 1, 2, 1, false, 0xFFFFFF},
                             {5, 3, 1, 1, 1, 1, false, 0xFFFF00},
                             {6, 4, 1, 2, 1, 2, false, 0xFFFFFF}};
  read.SetActiveSheet(1);
  for (const auto& c : cases) {
    const wb::CellStyle& style = read.GetCellStyle(c.row, c.col);
    const auto where = "row " + std::to_string(c.row) + " col " + std::to_string(c.col);
    EXPECT_EQ(std::tuple(style.left.style, style.right.style, style.top.style, style.bottom.style),
              std::tuple(c.left, c.right, c.top, c.bottom))
        << where;
    EXPECT_EQ(std::tuple(style.font.bold, style.fill, style.numberFormat, style.hAlign),
              std::tuple(c.bold, c.fill, "0.000", wb::HAlign::Right))
        << where;
    EXPECT_EQ(style.font.name, "Times New Roman") << where;
  }
  const wb::CellStyle& title = read.GetCellStyle(1, 1);
  EXPECT_TRUE(title.font.bold);
  EXPECT_EQ(title.font.size, 14);
  EXPECT_EQ(title.font.name, "Times New Roman");
  EXPECT_EQ(read.GetCellStyle(2, 1).font.name, "Times New Roman");
}

// A page block, placed at A1 of its sheet, sets that sheet's widths and print setup, also
// from a block it includes at A1; placed anywhere else it is refused.
TEST_F(BookAssemblerTest, PageBlockLaysOutItsOwnSheet) {
  Write("book.book",
        "book Test\nsheet Page 1\nsheet Page 2\ninclude page at Page 2!A1 with WIDE=12\n");
  Write("page.cells",
        "param WIDE\ncolumns A=2 C={WIDE}\npage landscape footer=\"&A\"\n"
        "include frame at A1\ngrid A6\n| x |\n");
  Write("frame.cells", "page margins=0.5,0.5,0.75,0.5\ngrid B1\n| Title |\n");
  Assemble();
  const wb::Sheet& page1 = book_.GetSheet(1);
  const wb::Sheet& page2 = book_.GetSheet(2);
  EXPECT_EQ(std::tuple(page2.ColumnWidth(1), page2.ColumnWidth(2), page2.ColumnWidth(3)),
            std::tuple(2.0, wb::Sheet::kDefaultColumnWidth, 12.0));
  EXPECT_EQ(std::tuple(page2.Print().landscape, page2.Print().footer, page2.Print().leftMargin),
            std::tuple(true, "&A", 0.5));
  EXPECT_EQ(page1.ColumnWidth(1), wb::Sheet::kDefaultColumnWidth);
  EXPECT_FALSE(page1.Print().landscape);

  book_.ClearAll();
  Write("book.book", "book Test\nsheet Main\ninclude page at Main!A2 with WIDE=12\n");
  EXPECT_NE(Fault().find("page.cells:2: error: 'columns' stands in a page block, one placed at A1 "
                         "of its sheet"),
            std::string::npos);
}

struct LinkCase {
  const char* formula;
  const char* expected;  // part of the fault, or empty when it builds
};

// A template's links are judged against the books given with --link, which are open.
TEST_F(BookAssemblerTest, LinksNeedTheLinkedBookToHoldTheNameOrSheet) {
  wb::Workbook data("Data");
  data.SetSheetName(1, "Sheet1");
  data.SetCellNumber(1, 2, 60);
  data.SetDefinedName("Height", "Sheet1!$B$1");
  const LinkCase cases[] = {
      {"=[Data]Sheet1!Height*2", ""},
      {"=[DATA]sheet3!Height", ""},
      {"=[Data]Sheet1!B1", ""},
      {"=IF(1,2,Category)", ""},
      {"=[Data]Sheet1!Width", "book.book:5: error: the book 'Data' does not define 'Width'"},
      {"=[Data]Sheet9!B1", "book.book:5: error: the book 'Data' has no sheet 'Sheet9'"},
      {"=[WindData]Sheet1!Height", "book.book:5: error: no linked book 'WindData'"},
      {"=Kind", "book.book:5: error: name 'Kind' is not defined"},
  };
  for (const auto& c : cases) {
    book_.ClearAll();
    Write("book.book", std::string("book Test\nundefined Category\nsheet Main\ngrid Main!A1\n| ") +
                           c.formula + " |\n");
    const std::string fault = Fault();
    if (*c.expected == '\0') {
      EXPECT_EQ(fault, "") << c.formula;
      continue;
    }
    EXPECT_NE(fault.find(c.expected), std::string::npos) << c.formula << ": " << fault;
  }
  book_.Recalc();
  book_.SetActiveSheet(1);
  EXPECT_EQ(book_.CellText(1, 1), "#NAME?") << "the last case reads an undefined name";

  Write("book.book", "book Test\nundefined Category\nsheet Main\nname Category = Main!A1\n");
  book_.ClearAll();
  EXPECT_NE(Fault().find("book.book:4: error: name 'Category' is declared undefined at"),
            std::string::npos);
}

}  // namespace
}  // namespace gustline::books
