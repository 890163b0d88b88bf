#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "core/workbook/formula/Evaluator.h"
#include "core/workbook/formula/Formula.h"
#include "core/workbook/model/Workbook.h"

namespace gustline::wb {
namespace {

Value N(double number) {
  return Value::Number(number);
}

// Twice_1 := Twice_2+Twice_2, ... Twice_depth := Sheet1!$A$1: Twice_1 is 2^(depth-1) times A1.
void DefineDoublingNames(Workbook& book, int depth) {
  for (int i = 1; i < depth; ++i) {
    const std::string next = "Twice_" + std::to_string(i + 1);
    book.SetDefinedName("Twice_" + std::to_string(i), next + "+" + next);
  }
  book.SetDefinedName("Twice_" + std::to_string(depth), "Sheet1!$A$1");
}

// Chain_1 := Chain_2, ... Chain_length := 7.
void DefineChain(Workbook& book, int length) {
  for (int i = 1; i < length; ++i)
    book.SetDefinedName("Chain_" + std::to_string(i), "Chain_" + std::to_string(i + 1));
  book.SetDefinedName("Chain_" + std::to_string(length), "7");
}

class ReadCounter : public CellReadObserver {
 public:
  ReadCounter() : outer_(CurrentCellReadObserver()) { CurrentCellReadObserver() = this; }
  ~ReadCounter() override { CurrentCellReadObserver() = outer_; }
  void Read(const Sheet&, int, int) override { ++reads; }
  int reads = 0;

 private:
  CellReadObserver* outer_;
};

Value Eval(Workbook& book, const std::string& formula) {
  const FormulaHost host{&book, 0, {20, 5}};
  return Evaluate(*ParseFormula(formula, host), host);
}

// What names evaluate to, whether read once or many times in a formula.
TEST(NameValues, NamesKeepTheirMeaning) {
  Workbook book("Names");
  for (int row = 1; row <= 5; ++row) book.SetCellNumber(row, 1, row * 10);
  book.SetDefinedName("Column", "Sheet1!$A$1:$A$5");
  book.SetDefinedName("FromTop", "Sheet1!A2");
  book.SetDefinedName("Bad", "1/0");
  book.SetDefinedName("Loop", "Loop+1");
  book.SetDefinedName("Ping", "Pong*2");
  book.SetDefinedName("Pong", "Ping/2");
  book.SetDefinedName("Both", "Column");
  DefineChain(book, 32);
  book.SetDefinedName("TooLong", "Chain_1");
  book.SetActiveSheet(1);
  struct Case {
    const char* formula;
    Value expected;
  };
  const std::vector<Case> cases = {
      {"SUM(Column)+SUM(Column)", N(300)},
      {"INDEX(Both,2)+MATCH(30,Column)", N(23)},
      {"FromTop+FromTop", N(40)},  // relative to A1, wherever the formula stands
      {"Bad+Bad", Value::Error(ErrorCode::Div0)},
      {"Loop", Value::Error(ErrorCode::Ref)},
      {"Ping+Pong", Value::Error(ErrorCode::Ref)},
      {"Chain_1", N(7)},
      {"Chain_1+TooLong", Value::Error(ErrorCode::Ref)},  // one name deeper than the limit
      {"IF(ISNUMBER(TooLong),0,Chain_2)", N(7)},
  };
  for (const Case& c : cases) EXPECT_EQ(Eval(book, c.formula), c.expected) << c.formula;
}

// Names that each use the next twice are evaluated once each, not 2^19 times; the reference
// that the last one gives is read by both uses in the one above.
TEST(NameValues, DoublingNamesReadTheirCellTwice) {
  Workbook book("Doubling");
  book.SetCellNumber(1, 1, 1);
  DefineDoublingNames(book, 20);
  book.Recalc();
  const ReadCounter counter;
  EXPECT_EQ(Eval(book, "Twice_1"), N(524288));
  EXPECT_EQ(counter.reads, 2);
}

// Within one calculation a name follows every cell that changes: through iteration, a circle
// that only the order of reads resolves, and one that the name closes.
TEST(NameValues, RecalculationSeesChangedCellsThroughNames) {
  struct Case {
    const char* what;
    std::vector<std::pair<const char*, const char*>> names;
    std::vector<const char*> formulas;  // A1, B1, ...
    bool iteration;
    std::vector<Value> expected;
  };
  const Case cases[] = {
      {"iteration", {{"HalfB", "Sheet1!$B$1/2"}}, {"1+HalfB", "A1"}, true, {N(2), N(2)}},
      {"order of reads",
       {{"TheA", "Sheet1!$A$1"}, {"TheB", "Sheet1!$B$1"}},
       {"IF(C1=0,1,TheB)", "IF(C1=0,TheA+1,2)", "0"},
       false,
       {N(1), N(2)}},
      {"circle through a name",
       {{"TheA", "Sheet1!$A$1*1"}},
       {"IF(C1=0,TheA+1,B1)", "TheA+1", "0"},
       false,
       {Value::Error(ErrorCode::Value), Value::Error(ErrorCode::Value)}},
  };
  for (const Case& c : cases) {
    Workbook book("Recalc");
    book.SetAutoRecalc(false);
    book.SetIteration(c.iteration, 100, 0.0001);
    for (const auto& [name, refersTo] : c.names) book.SetDefinedName(name, refersTo);
    for (std::size_t col = 0; col < c.formulas.size(); ++col)
      book.SetCellFormula(1, static_cast<int>(col) + 1, c.formulas[col]);
    book.Recalc();
    for (std::size_t col = 0; col < c.expected.size(); ++col) {
      const Value value = book.CellValue(1, static_cast<int>(col) + 1);
      if (c.iteration)
        EXPECT_NEAR(value.AsNumber(), c.expected[col].AsNumber(), 0.001) << c.what;
      else
        EXPECT_EQ(value, c.expected[col]) << c.what << " column " << col + 1;
    }
  }

  // Doubling names over a formula cell, as a file of 1.4 KB that once held the program for
  // minutes and its dependencies for gigabytes.
  Workbook book("Doubling");
  book.SetAutoRecalc(false);
  DefineDoublingNames(book, 32);
  book.SetCellFormula(1, 1, "1+0");
  book.SetCellFormula(1, 2, "Twice_1");
  book.Recalc();
  EXPECT_EQ(book.CellValue(1, 2), N(2147483648.0));
  book.SetCellFormula(1, 1, "2+0");
  book.Recalc();
  EXPECT_EQ(book.CellValue(1, 2), N(4294967296.0));
}

}  // namespace
}  // namespace gustline::wb
