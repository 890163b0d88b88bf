#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "report/TemplateCheck.h"

namespace gustline::report {
namespace {

struct MalformedCase {
  const char* text;
  const char* error;
};

TEST(TemplateCheckTest, MalformedLineIsReportedWithItsNumber) {
  const std::vector<MalformedCase> cases = {
      {"expect qh 1", "t.check:1: a check stands before the first case"},
      {"# heading\n\ncase", "t.check:3: a case needs a name"},
      {"case A\nverify qh 1", "t.check:2: unknown directive verify"},
      {"case A\nset Height", "t.check:2: expected set NAME VALUE"},
      {"case A\ntemplate", "t.check:2: expected template NAME"},
      {"tolerance -1", "t.check:1: a tolerance is a number not below 0, not -1"},
      {"case A\nexpect qh", "t.check:2: expected expect WHERE VALUE [TOLERANCE]"},
      {"case A\nexpect qh ten",
       "t.check:2: a value is a number, a quoted text, hidden or shown, not ten"},
      {"case A\nexpect qh \"C\" 0.1", "t.check:2: only a number takes a tolerance"},
      {"case A\nexpect qh hidden 0.1", "t.check:2: only a number takes a tolerance"},
      {"case A\nexpect qh 1 1e-3 # comment\nexpect qh 1 x",
       "t.check:3: a tolerance is a number not below 0, not x"},
      {"case A\r\nexpect 'Page 3'!J@B\"Side wall 1\r\n", "t.check:2: a quote is not closed"},
      {"case A\nexpect J@B\"Side wall\" 1",
       "t.check:2: no sheet before the column in J@B\"Side wall\""},
      {"case A\nexpect 'Page 3'!@B\"Side wall\" 1",
       "t.check:2: no column before @ in 'Page 3'!@B\"Side wall\""},
      {"case A\nexpect 'Page 3'!J@\"Side wall\" 1",
       "t.check:2: no label column after @ in 'Page 3'!J@\"Side wall\""},
      {"case A\nexpect 'Page 3'!J@B 1", "t.check:2: no quoted label after @ in 'Page 3'!J@B"},
      {"case A\nexpect 'Page 3'!J@B\"Side wall\"[0] 1",
       "t.check:2: no row count of 1 or more in [ ] in 'Page 3'!J@B\"Side wall\"[0]"},
      {"case A\nexpect 'Page 3'!J@B\"Side wall\"2 1",
       "t.check:2: no whole number of rows after the label in 'Page 3'!J@B\"Side wall\"2"},
  };
  for (const MalformedCase& c : cases) {
    try {
      ParseCheckFile(c.text, "t.check");
      ADD_FAILURE() << c.text << " was read";
    } catch (const CheckFileError& error) {
      EXPECT_EQ(std::string(error.what()), c.error) << c.text;
    }
  }
  try {
    ReadCheckFile("no/such.check");
    ADD_FAILURE() << "a missing file was read";
  } catch (const CheckFileError& error) {
    EXPECT_EQ(std::string(error.what()), "no/such.check: the file cannot be read");
  }
}

struct RunCase {
  const char* text;
  int checks;
  std::vector<std::string> failures;
};

// The default project gives the low-rise report Figure610, qh 17.43 psf on page 2.
TEST(TemplateCheckTest, FailedChecksAreReportedAtTheirLines) {
  const std::vector<RunCase> cases = {
      {"case A\ntemplate Figure610\nexpect qh 17.428542112355654 1e-12\n"
       "expect 'Page 1'!I@B\"Exposure Category\" \"C\"\nexpect 'Page 3'!C@B\"2E\" -0.668",
       4,
       {}},
      {"case A\nexpect qh 17.5",
       1,
       {"t.check:2: expected 17.5, got 17.428542112355654 in 'Page 2'!I26"}},
      {"tolerance 0.01\ncase A\nexpect qh 17.4",
       1,
       {"t.check:3: expected 17.4 (±0.01), got 17.428542112355654 in 'Page 2'!I26"}},
      {"case A\nexpect 'Page 1'!I@B\"Exposure Category\" \"B\"\nexpect qh \"17.43\"",
       2,
       {"t.check:2: expected \"B\", got \"C\" in 'Page 1'!I34"}},
      {"case A\nexpect 'Page 1'!I@B\"Exposure Category\" 3",
       1,
       {"t.check:2: expected 3, got \"C\" in 'Page 1'!I34"}},
      {"case A\nexpect qhh 1\nexpect 'Page 9'!C@B\"2E\" 1\nexpect 'Page 3'!C@B\"2F\" 1\n"
       "expect 'Page 3'!C@B\"2E\"[2] 1\nexpect 'Page 3'!C@B\"Roof Angle\"-9 1",
       5,
       {"t.check:2: the report has no cell qhh", "t.check:3: the report has no sheet \"Page 9\"",
        "t.check:4: no row of \"Page 3\" shows \"2F\" in column B",
        "t.check:5: \"Page 3\" has fewer than 2 rows that show \"2E\" in column B",
        "t.check:6: 'Page 3'!C@B\"Roof Angle\"-9 is above the first row"}},
      // The checks go on after another template, and every set rebuilds the report.
      {"case A\nset Structure 1\ntemplate Figure610\nexpect qh 17.428542112355654 1e-12\n"
       "set Pressure 1\nexpect qh 0.017428542112355654 1e-12",
       3,
       {"t.check:3: expected template Figure610, got Figure66A"}},
      // A case stops at an input it cannot write, or a report that is not built; the next
      // case starts again from the default project.
      {"case A\nset Nope 1\nexpect qh 1\ncase B\nset Structure 5\nexpect qh 1\n"
       "case C\nexpect qh 17.428542112355654 1e-12",
       3,
       {"t.check:2: set Nope: The name \"Nope\" is not defined", "t.check:6: no report was built"}},
  };
  for (const RunCase& c : cases) {
    const CheckRun run = RunCheckFile(ParseCheckFile(c.text, "t.check"), GUSTLINE_BIN_DIR);
    std::vector<std::string> failures;
    for (const CheckFailure& failure : run.failures) failures.push_back(failure.Text());
    EXPECT_EQ(failures, c.failures) << c.text;
    EXPECT_EQ(run.checks, c.checks) << c.text;
  }
}

}  // namespace
}  // namespace gustline::report
