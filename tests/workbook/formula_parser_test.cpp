#include <gtest/gtest.h>

#include <string>

#include "core/workbook/formula/Formula.h"
#include "core/workbook/model/Workbook.h"
#include "core/workbook/value/FacilityError.h"

namespace gustline::wb {
namespace {

class FormulaParserTest : public ::testing::Test {
 protected:
  FormulaParserTest() : book_("Host") {
    book_.SetSheetName(1, "Sheet1");
    book_.AddSheet("Page 1");
    book_.AddSheet("Sheet3");
  }

  std::string RoundTrip(std::string_view text, CellAddress cell = {10, 3}) {
    const FormulaHost host{&book_, 0, cell};
    return FormulaText(*ParseFormula(text, host), host);
  }

  Workbook book_;
};

TEST_F(FormulaParserTest, PrintsACanonicalForm) {
  const struct {
    const char* input;
    const char* printed;
  } cases[] = {{"1 + 2 * 3", "1+2*3"},
               {"-2^2", "-2^2"},
               {"( 1+2 )*3", "(1+2)*3"},
               {"50%", "50%"},
               {".5", "0.5"},
               {"1.5E+3", "1500"},
               {"1E-7", "1e-07"},
               {"\"say \"\"hi\"\"\"", "\"say \"\"hi\"\"\""},
               {"true", "TRUE"},
               {"#n/a", "#N/A"},
               {"#DIV/0!", "#DIV/0!"},
               {"if(a1>0,choose(b$2+1,\"x\",\"y\"),)", "IF(A1>0,CHOOSE(B$2+1,\"x\",\"y\"),)"},
               {"$A$1:C16", "$A$1:C16"},
               {"sum(Sheet1!A1:B2)", "SUM(Sheet1!A1:B2)"},
               {"'Page 1'!A1", "'Page 1'!A1"},
               {"'Sheet3'!a1", "Sheet3!A1"},
               {"Height*2", "Height*2"},
               {"Sheet1!Height", "Sheet1!Height"},
               {"NoSuchSheet!B4", "NoSuchSheet!B4"},
               {"[Nowhere]Sheet1!Height", "[Nowhere]Sheet1!Height"},
               {"[Figure610(D)]Sheet1!$B$24", "[Figure610(D)]Sheet1!$B$24"},
               {"'[Nowhere]Page 2'!A1", "'[Nowhere]Page 2'!A1"},
               {"myfunc(1, ,A1)", "myfunc(1,,A1)"},
               {"NOW()", "NOW()"},
               {"A1:INDEX(B1:B9,3)", "A1:INDEX(B1:B9,3)"},
               {"1<>2", "1<>2"},
               {"a1 & \"x\"", "A1&\"x\""},
               {"'[B\"k]Sheet'!A1", "[B\"k]Sheet!A1"},
               {"'[Bk].x1'!A1", "'[Bk].x1'!A1"}};
  for (const auto& c : cases) {
    const std::string printed = RoundTrip(c.input);
    EXPECT_EQ(printed, c.printed) << c.input;
    EXPECT_EQ(RoundTrip(printed), printed) << c.input;
  }
}

TEST_F(FormulaParserTest, RelativeReferencesPrintForTheHostCell) {
  const auto formula = ParseFormula("A1+$B2+C$3+$D$4", FormulaHost{&book_, 0, {10, 3}});
  EXPECT_EQ(FormulaText(*formula, FormulaHost{&book_, 0, {12, 4}}), "B3+$B4+D$3+$D$4");
  EXPECT_EQ(FormulaText(*formula, FormulaHost{&book_, 0, {1, 3}}), "#REF!+#REF!+C$3+$D$4");
}

TEST_F(FormulaParserTest, RenamedSheetPrintsItsNewName) {
  const FormulaHost host{&book_, 0, {1, 1}};
  const auto formula = ParseFormula("Sheet3!A1", host);
  book_.SetSheetName(3, "Page 3");
  EXPECT_EQ(FormulaText(*formula, host), "'Page 3'!A1");
}

TEST_F(FormulaParserTest, RejectsTextThatDoesNotParse) {
  const char* bad[] = {"",      "1+",     "(1",    "1)",      "\"open",    "IF(1,2,3,4)",
                       "ABS()", "NOW(1)", "1 2",   "#WHAT?",  "Sheet1!",   "[Book",
                       "A1:",   "@",      "1E999", "SUM(1,,", "'Page 1'A1"};
  for (const char* text : bad) {
    try {
      ParseFormula(text, FormulaHost{&book_, 0, {1, 1}});
      ADD_FAILURE() << "parsed: " << text;
    } catch (const FacilityError& error) {
      EXPECT_EQ(error.Number(), errc::kFormulaSyntax) << text;
    }
  }
}

TEST_F(FormulaParserTest, DeepNestingIsASyntaxErrorNotACrash) {
  const FormulaHost host{&book_, 0, {1, 1}};
  for (const std::string& text : {std::string(10000, '(') + "1" + std::string(10000, ')'),
                                  std::string(10000, '-') + "1", "ABS(" + std::string(5000, '(')}) {
    EXPECT_THROW(ParseFormula(text, host), FacilityError);
  }
  std::string longSum = "1";
  for (int i = 0; i < 20000; ++i) longSum += "+1";
  EXPECT_THROW(ParseFormula(longSum, host), FacilityError);
  const std::string nested = std::string(50, '(') + "1" + std::string(50, ')');
  EXPECT_EQ(FormulaText(*ParseFormula(nested, host), host), nested);
}

TEST_F(FormulaParserTest, UnknownFunctionIsNotASyntaxError) {
  const FormulaHost host{&book_, 0, {1, 1}};
  const auto formula = ParseFormula("Vlookup2(1)", host);
  EXPECT_EQ(Evaluate(*formula, host), Value::Error(ErrorCode::Name));
  EXPECT_EQ(FormulaText(*formula, host), "Vlookup2(1)");
}

}  // namespace
}  // namespace gustline::wb
