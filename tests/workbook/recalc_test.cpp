#include <gtest/gtest.h>

#include <string>

#include "core/workbook/model/BookRegistry.h"
#include "core/workbook/model/Workbook.h"

namespace gustline::wb {
namespace {

Value N(double number) {
  return Value::Number(number);
}

TEST(RecalcTest, EvaluatesInDependencyOrderWhateverTheLayout) {
  Workbook book("Order");
  book.SetAutoRecalc(false);
  book.AddSheet("Sheet2");
  // Each cell reads one written after it, across sheets.
  book.SetCellFormula(1, 1, "A2+1");
  book.SetCellFormula(2, 1, "Sheet2!B5*2");
  book.SetActiveSheet(2);
  book.SetCellFormula(5, 2, "Sheet1!C9");
  book.SetActiveSheet(1);
  book.SetCellNumber(9, 3, 10);
  book.Recalc();
  EXPECT_EQ(book.CellValue(1, 1), N(21));
  book.SetCellNumber(9, 3, 1);
  book.Recalc();
  EXPECT_EQ(book.CellValue(1, 1), N(3));
}

TEST(RecalcTest, RangesAndNamesAddDependencies) {
  Workbook book("Deps");
  book.SetAutoRecalc(false);
  book.SetDefinedName("Table", "Sheet1!$B$1:$B$3");
  book.SetCellFormula(1, 1, "SUM(Table)+MATCH(5,B1:B3)");
  for (int row = 1; row <= 3; ++row) book.SetCellFormula(row, 2, "C" + std::to_string(row) + "*2");
  for (int row = 1; row <= 3; ++row) book.SetCellNumber(row, 3, row);
  book.Recalc();
  EXPECT_EQ(book.CellValue(1, 1), N(12 + 2));
}

TEST(RecalcTest, LongChainDoesNotOverflowTheStack) {
  Workbook book("Chain");
  book.SetAutoRecalc(false);
  book.SetCellNumber(1, 1, 1);
  // Written from the bottom so that row order is the reverse of dependency order.
  for (int row = kMaxRow; row >= 2; --row)
    book.SetCellFormula(row, 1, "A" + std::to_string(row - 1) + "+1");
  book.Recalc();
  EXPECT_EQ(book.CellValue(kMaxRow, 1), N(kMaxRow));
}

TEST(RecalcTest, CycleWithoutIterationIsValueErrorAndTerminates) {
  Workbook book("Cycle");
  book.SetAutoRecalc(false);
  book.SetCellFormula(1, 1, "B1+1");
  book.SetCellFormula(1, 2, "A1+1");
  book.SetCellFormula(1, 3, "C1");
  book.SetCellFormula(1, 4, "A1+1");
  book.SetCellFormula(2, 1, "5");
  book.Recalc();
  for (int col = 1; col <= 3; ++col)
    EXPECT_EQ(book.CellValue(1, col), Value::Error(ErrorCode::Value)) << col;
  EXPECT_EQ(book.CellValue(1, 4), Value::Error(ErrorCode::Value));
  EXPECT_EQ(book.CellValue(2, 1), N(5));
}

// A running total that reads the row above or the row below by a switch, as the shear
// columns of the force tables do, is circular only on paper: one pass settles it in the
// direction the switch chooses, with or without iteration.
TEST(RecalcTest, TableThatReadsEitherNeighbourSettlesInOnePass) {
  for (const bool iteration : {false, true}) {
    for (const int order : {0, 1}) {
      Workbook book("Shear");
      book.SetAutoRecalc(false);
      book.SetIteration(iteration, 100, 0.001);
      book.SetCellNumber(1, 1, order);
      book.SetCellText(1, 2, "Shear");
      constexpr int kRows = 2000;
      for (int row = 2; row <= kRows + 1; ++row) {
        book.SetCellFormula(row, 2,
                            "1+IF($A$1=0,IF(ISTEXT(B" + std::to_string(row - 1) + "),0,B" +
                                std::to_string(row - 1) + "),IF(ISNUMBER(B" +
                                std::to_string(row + 1) + "),B" + std::to_string(row + 1) + ",0))");
      }
      book.Recalc();
      EXPECT_EQ(book.CellValue(order == 0 ? kRows + 1 : 2, 2), N(kRows)) << iteration << order;
      EXPECT_EQ(book.CellValue(order == 0 ? 2 : kRows + 1, 2), N(1)) << iteration << order;
    }
  }
}

TEST(RecalcTest, IterationSolvesACircularReference) {
  Workbook book("Iterate");
  book.SetAutoRecalc(false);
  book.SetIteration(true, 100, 0.001);
  // x = 1 + x / 2 converges to 2.
  book.SetCellFormula(1, 1, "1+B1/2");
  book.SetCellFormula(1, 2, "A1");
  book.SetCellFormula(1, 3, "A1*10");
  book.Recalc();
  EXPECT_NEAR(book.CellValue(1, 1).AsNumber(), 2, 0.002);
  EXPECT_NEAR(book.CellValue(1, 3).AsNumber(), 20, 0.02);

  // A divergent cycle stops after the maximum number of passes.
  book.SetIteration(true, 10, 0.001);
  book.SetCellFormula(1, 1, "1+B1");
  book.Recalc();
  EXPECT_TRUE(book.CellValue(1, 1).IsNumber());
  EXPECT_LE(book.CellValue(1, 1).AsNumber(), 25);
}

TEST(RecalcTest, AutomaticCalculationFollowsChanges) {
  Workbook book("Auto");
  book.SetCellNumber(1, 1, 2);
  book.SetCellFormula(1, 2, "A1*3");
  EXPECT_EQ(book.CellValue(1, 2), N(6));
  book.SetCellNumber(1, 1, 5);
  EXPECT_EQ(book.CellValue(1, 2), N(15));

  book.SetAutoRecalc(false);
  book.SetCellNumber(1, 1, 7);
  EXPECT_EQ(book.CellValue(1, 2), N(15));
  book.SetAutoRecalc(true);
  EXPECT_EQ(book.CellValue(1, 2), N(21));
}

TEST(RecalcTest, RecalcWithoutChangeLeavesTheChangeCount) {
  Workbook book("Quiet");
  book.SetCellFormula(1, 1, "1+1");
  book.Recalc();
  const std::uint64_t count = book.ChangeCount();
  book.Recalc();
  book.EnsureCalculated();
  EXPECT_EQ(book.ChangeCount(), count);
}

// A pass is settled when another would keep every value: the builders skip that pass.
TEST(RecalcTest, SettledOnlyWhenNoGroupNeededIteration) {
  struct Case {
    const char* a1;
    const char* b1;
    bool iteration;
    bool settled;
  };
  const Case cases[] = {
      {"B1+1", "C1*2", false, true},
      {"IF(C1=0,1,B1)", "IF(C1=0,A1+1,2)", false, true},  // circular on paper only
      {"B1+1", "A1+1", false, false},
      {"1+B1/2", "A1", true, false},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(std::string(c.a1) + " ; " + c.b1);
    Workbook book("Settle");
    book.SetAutoRecalc(false);
    book.SetIteration(c.iteration, 100, 0.001);
    book.SetCellFormula(1, 1, c.a1);
    book.SetCellFormula(1, 2, c.b1);
    EXPECT_FALSE(book.RecalcSettled());
    book.Recalc();
    EXPECT_EQ(book.RecalcSettled(), c.settled);
    if (!c.settled) continue;
    const Value a1 = book.CellValue(1, 1);
    const Value b1 = book.CellValue(1, 2);
    book.Recalc();
    EXPECT_EQ(book.CellValue(1, 1), a1);
    EXPECT_EQ(book.CellValue(1, 2), b1);
  }
}

}  // namespace
}  // namespace gustline::wb
