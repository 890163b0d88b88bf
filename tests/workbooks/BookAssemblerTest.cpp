// The builder: blocks land at their anchors with their parameters, and faults in the
// sources stop the build with their file and line.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "BookAssembler.h"
#include "core/workbook/NamedCells.h"
#include "core/workbook/Workbook.h"

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

}  // namespace
}  // namespace gustline::books
