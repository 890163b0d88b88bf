#include <gtest/gtest.h>

#include <cmath>
#include <ctime>
#include <vector>

#include "core/workbook/formula/Formula.h"
#include "core/workbook/model/Workbook.h"

namespace gustline::wb {
namespace {

struct Case {
  const char* formula;
  Value expected;
};

// A book with a small table on Sheet1:
//   A1:A5 1, 2, 4, 8, 16      B1:B5 "one", "two", "four", "eight", "sixteen"
//   C1:C5 50, 40, 30, 20, 10  D1 "abc", D2 TRUE, D3 empty, D4 #N/A (by formula), D5 "7"
class FormulaEvalTest : public ::testing::Test {
 protected:
  FormulaEvalTest() : book_("EvalBook") {
    const double a[] = {1, 2, 4, 8, 16};
    const char* b[] = {"one", "two", "four", "eight", "sixteen"};
    for (int row = 1; row <= 5; ++row) {
      book_.SetCellNumber(row, 1, a[row - 1]);
      book_.SetCellText(row, 2, b[row - 1]);
      book_.SetCellNumber(row, 3, 60 - 10 * row);
    }
    book_.SetCellText(1, 4, "abc");
    book_.SetCellFormula(2, 4, "TRUE");
    book_.SetCellFormula(4, 4, "#N/A");
    book_.SetCellText(5, 4, "7");
    book_.SetDefinedName("Powers", "Sheet1!$A$1:$A$5");
    book_.SetDefinedName("Words", "Sheet1!$B$1:$B$5");
    book_.SetDefinedName("Second", "Sheet1!$A$2");
    book_.Recalc();
  }

  // Evaluated in E20, beyond the table, so that ranges find no intersection by accident.
  Value Eval(std::string_view formula, CellAddress cell = {20, 5}) {
    auto parsed = ParseFormula(formula, FormulaHost{&book_, 0, cell});
    return Evaluate(*parsed, FormulaHost{&book_, 0, cell});
  }

  void Check(const std::vector<Case>& cases) {
    for (const Case& c : cases) {
      const Value actual = Eval(c.formula);
      EXPECT_EQ(actual, c.expected) << c.formula << " gave " << PlainText(actual);
    }
  }

  Workbook book_;
};

Value N(double number) {
  return Value::Number(number);
}
Value T(const char* text) {
  return Value::Text(text);
}
Value B(bool flag) {
  return Value::Boolean(flag);
}
Value E(ErrorCode code) {
  return Value::Error(code);
}

TEST_F(FormulaEvalTest, OperatorsAndPrecedence) {
  Check({{"-2^2", N(4)},
         {"2^3^2", N(64)},
         {"1+2*3", N(7)},
         {"(1+2)*3", N(9)},
         {"50%", N(0.5)},
         {"-50%*2", N(-1)},
         {"2*-3", N(-6)},
         {"1+2&\"x\"", T("3x")},
         {"1+1=2", B(true)},
         {"\"a\"&1.5&TRUE", T("a1.5TRUE")},
         {"0.1+0.2&\"\"", T("0.3")},
         {"1E+20&\"\"", T("1E+20")},
         {"1/3&\"\"", T("0.333333333333333")},
         {"\"say \"\"hi\"\"\"", T("say \"hi\"")},
         {"TRUE+TRUE", N(2)},
         {"D3+1", N(1)},
         {"D3&\"x\"", T("x")},
         {"+D1", T("abc")}});
}

TEST_F(FormulaEvalTest, ArithmeticErrors) {
  Check({{"1/0", E(ErrorCode::Div0)},
         {"0/0", E(ErrorCode::Div0)},
         {"0^0", E(ErrorCode::Num)},
         {"(-8)^(1/3)", E(ErrorCode::Num)},
         {"10^400", E(ErrorCode::Num)},
         {"D1+1", E(ErrorCode::Value)},
         {"-D1", E(ErrorCode::Value)},
         {"D5*1", E(ErrorCode::Value)},
         {"#N/A+1/0", E(ErrorCode::NA)},
         {"1/0+#N/A", E(ErrorCode::Div0)},
         {"D4&\"x\"", E(ErrorCode::NA)},
         {"NOSUCH(1)", E(ErrorCode::Name)},
         {"Undefined+1", E(ErrorCode::Name)},
         {"A1:A5", E(ErrorCode::Value)}});
}

TEST_F(FormulaEvalTest, Comparisons) {
  Check({{"1<\"a\"", B(true)},
         {"\"z\"<TRUE", B(true)},
         {"\"abc\"=\"ABC\"", B(true)},
         {"\"abc\"<\"abd\"", B(true)},
         {"D3=0", B(true)},
         {"D3=\"\"", B(true)},
         {"D3<>0", B(false)},
         {"2>=2", B(true)},
         {"2<>2", B(false)}});
}

TEST_F(FormulaEvalTest, LogicFunctions) {
  Check({{"IF(1,\"y\",\"n\")", T("y")},
         {"IF(0,\"y\")", B(false)},
         {"IF(1,\"y\",1/0)", T("y")},
         {"IF(D1,1,2)", E(ErrorCode::Value)},
         {"CHOOSE(2,\"a\",\"b\",\"c\")", T("b")},
         {"CHOOSE(2.9,\"a\",\"b\",\"c\")", T("b")},
         {"CHOOSE(1,\"a\",1/0)", T("a")},
         {"CHOOSE(0,\"a\")", E(ErrorCode::Value)},
         {"CHOOSE(3,\"a\",\"b\")", E(ErrorCode::Value)},
         {"AND(1,TRUE)", B(true)},
         {"AND(1,0)", B(false)},
         {"OR(0,A1:B5)", B(true)},
         {"AND(B1:B5)", E(ErrorCode::Value)},
         {"AND(\"x\")", E(ErrorCode::Value)},
         {"OR(D1:D5)", E(ErrorCode::NA)},
         {"ISNUMBER(A1)", B(true)},
         {"ISNUMBER(D5)", B(false)},
         {"ISNUMBER(1/0)", B(false)},
         {"ISTEXT(B1)", B(true)},
         {"ISNA(D4)", B(true)},
         {"ISNA(1/0)", B(false)},
         {"ISNA(MATCH(0.5,A1:A5))", B(true)},
         {"ISNA(NA())", B(true)}});
}

TEST_F(FormulaEvalTest, LookupFunctions) {
  Check({{"MATCH(5,A1:A5)", N(3)},
         {"MATCH(5,A1:A5,1)", N(3)},
         {"MATCH(16,A1:A5)", N(5)},
         {"MATCH(100,A1:A5)", N(5)},
         {"MATCH(0.5,A1:A5)", E(ErrorCode::NA)},
         {"MATCH(8,A1:A5,0)", N(4)},
         {"MATCH(\"FOUR\",B1:B5,0)", N(3)},
         {"MATCH(7,A1:A5,0)", E(ErrorCode::NA)},
         {"MATCH(35,C1:C5,-1)", N(2)},
         {"MATCH(10,C1:C5,-1)", N(5)},
         {"MATCH(60,C1:C5,-1)", E(ErrorCode::NA)},
         {"MATCH(4,Powers,0)", N(3)},
         {"MATCH(D4,A1:A5)", E(ErrorCode::NA)},
         {"INDEX(A1:C5,2,3)", N(40)},
         {"INDEX(A1:A5,4)", N(8)},
         {"INDEX(A1:C1,3)", N(50)},
         {"INDEX(Words,2)", T("two")},
         {"INDEX(A1:A5,6)", E(ErrorCode::Ref)},
         {"INDEX(A1:C5,1,4)", E(ErrorCode::Ref)},
         {"INDEX(Powers,MATCH(9,Powers))", N(8)},
         {"VLOOKUP(5,A1:C5,2)", T("four")},
         {"VLOOKUP(5,A1:C5,3)", N(30)},
         {"VLOOKUP(5,A1:C5,3,FALSE)", E(ErrorCode::NA)},
         {"VLOOKUP(8,A1:C5,2,0)", T("eight")},
         {"VLOOKUP(0,A1:C5,2)", E(ErrorCode::NA)},
         {"VLOOKUP(5,A1:C5,4)", E(ErrorCode::Ref)}});
}

TEST_F(FormulaEvalTest, MathAndTextFunctions) {
  Check({{"ROUND(2.675,2)", N(2.68)},
         {"ROUND(-2.5,0)", N(-3)},
         {"ROUND(2.5,0)", N(3)},
         {"ROUND(1234.5,-2)", N(1200)},
         {"ROUND(9.995,2)", N(10)},
         {"ROUND(0.1+0.2,15)", N(0.3)},
         {"ROUND(1.005,2)", N(1.01)},
         {"ROUND(5,-1)", N(10)},
         {"ROUND(4,-1)", N(0)},
         {"ABS(-3)", N(3)},
         {"SIGN(-0.1)", N(-1)},
         {"SIGN(0)", N(0)},
         {"SIGN(7)", N(1)},
         {"LN(0)", E(ErrorCode::Num)},
         {"LN(-1)", E(ErrorCode::Num)},
         {"SQRT(-1)", E(ErrorCode::Num)},
         {"SQRT(16)", N(4)},
         {"EXP(1000)", E(ErrorCode::Num)},
         {"SUM(A1:A5)", N(31)},
         {"SUM(A1:D5)", E(ErrorCode::NA)},
         {"SUM(A1:C3,TRUE,2)", N(130)},
         {"SUM(\"1\")", E(ErrorCode::Value)},
         {"SUM(B1:B5)", N(0)},
         {"MAX(A1:A5,C1:C5)", N(50)},
         {"MIN(A1:A5,-1)", N(-1)},
         {"MAX(B1:B5)", N(0)},
         {"MIN(D3)", N(0)},
         {"CODE(\"A\")", N(65)},
         {"CODE(12)", N(49)},
         {"CODE(\"\")", E(ErrorCode::Value)},
         {"CODE(D3)", E(ErrorCode::Value)},
         {"CODE(\"\xC9t\xE9\")", N(201)},
         {"CONCATENATE(\"a\",1,TRUE)", T("a1TRUE")},
         {"concatenate(B1,\"-\",A2)", T("one-2")},
         {"VALUE(\" 0.85 \")", N(0.85)},
         {"VALUE(2)", N(2)},
         {"VALUE(\"12 ft\")", E(ErrorCode::Value)},
         {"VALUE(\"\")", E(ErrorCode::Value)},
         {"VALUE(NA())", E(ErrorCode::NA)}});
}

TEST_F(FormulaEvalTest, ImplicitIntersectionUsesTheHostRowOrColumn) {
  EXPECT_EQ(Eval("A1:A5*2", {3, 6}), N(8));
  EXPECT_EQ(Eval("Powers", {4, 6}), N(8));
  EXPECT_EQ(Eval("A1:C1", {9, 2}), T("one"));
  EXPECT_EQ(Eval("A1:C5", {3, 6}), E(ErrorCode::Value));
  EXPECT_EQ(Eval("Second+1"), N(3));
}

TEST_F(FormulaEvalTest, NowIsTheSerialDayOfLocalTime) {
  const std::time_t now = std::time(nullptr);
  std::tm local{};
  localtime_r(&now, &local);
  const Value value = Eval("NOW()");
  ASSERT_TRUE(value.IsNumber());
  // 2000-01-01 is serial day 36526.
  const double days = value.AsNumber();
  const int yearsSince2000 = local.tm_year - 100;
  EXPECT_GT(days, 36526 + 365.0 * yearsSince2000);
  EXPECT_LT(days, 36526 + 366.0 * (yearsSince2000 + 1));
  const double fraction = days - std::floor(days);
  EXPECT_NEAR(fraction * 24, local.tm_hour + local.tm_min / 60.0, 0.1);
}

TEST_F(FormulaEvalTest, RelativeReferenceOffTheSheetIsRef) {
  auto parsed = ParseFormula("A1+1", FormulaHost{&book_, 0, {5, 5}});
  EXPECT_EQ(Evaluate(*parsed, FormulaHost{&book_, 0, {2, 5}}), E(ErrorCode::Ref));
  EXPECT_EQ(Evaluate(*parsed, FormulaHost{&book_, 0, {6, 5}}), N(3));
}

}  // namespace
}  // namespace gustline::wb
