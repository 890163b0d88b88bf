#include <gtest/gtest.h>

#include <map>
#include <optional>
#include <string>
#include <vector>

#include "core/CopyBookToBuffer.h"
#include "core/ProjectFilesExtensions.h"
#include "core/Prompt.h"
#include "core/workbook/model/Sheet.h"
#include "core/workbook/model/Workbook.h"

namespace gustline {
namespace {

struct ExtensionCase {
  std::string path;
  std::optional<int> type;
  std::string projectName;  // as a template would open
};

class ExtensionRuleTest : public ::testing::TestWithParam<ExtensionCase> {};

TEST_P(ExtensionRuleTest, TypeAndTemplateProjectName) {
  const ExtensionCase& c = GetParam();
  EXPECT_EQ(FileTypeOfName(c.path), c.type);
  EXPECT_EQ(ProjectNameFromTemplate(c.path), c.projectName);
}

INSTANTIATE_TEST_SUITE_P(Names, ExtensionRuleTest,
                         ::testing::Values(ExtensionCase{"C:\\Jobs\\Wall.gln", 5, "WALL.GLN"},
                                           ExtensionCase{"/home/eng/old.GlZ", 5, "OLD.GLN"},
                                           ExtensionCase{"C:\\Templates\\Tall.glt", 30001,
                                                         "TALL.GLN"},
                                           ExtensionCase{"legacy.GLU", 30001, "LEGACY.GLN"},
                                           ExtensionCase{"Report.XLS", 4, "REPORT.GLN"},
                                           ExtensionCase{"report.txt", 3, "REPORT.GLN"},
                                           ExtensionCase{"Job.glnx", std::nullopt, "JOB.GLNX.GLN"},
                                           ExtensionCase{"Job", std::nullopt, "JOB.GLN"},
                                           ExtensionCase{"Job.gl", std::nullopt, "JOB.GLN"},
                                           ExtensionCase{"v1.gln\\Job", std::nullopt, "JOB.GLN"}));

// Three pages of 2, 3 and 1 rows; each first cell names its page and row.
void FillPages(wb::Workbook& book) {
  const std::vector<int> rows = {2, 3, 1};
  for (int page = 1; page <= 3; ++page) {
    if (page > 1) book.AddSheet("Page " + std::to_string(page));
    book.SetActiveSheet(page);
    for (int row = 1; row <= rows[page - 1]; ++row)
      book.SetCellText(row, 1, "p" + std::to_string(page) + "r" + std::to_string(row));
    book.SetCellFormula(1, 2, std::to_string(page) + "*10");
  }
  book.SetActiveSheet(2);
}

struct CopyCase {
  int first;
  int last;
  std::vector<std::string> columnA;  // rows 1.. of the target
  bool copied;
};

class CopyBookToBufferTest : public ::testing::TestWithParam<CopyCase> {};

TEST_P(CopyBookToBufferTest, StacksPagesAsResultsWithOneEmptyRowBetween) {
  const CopyCase& c = GetParam();
  wb::Workbook report("ServerSS");
  wb::Workbook buffer("BufferSS");
  FillPages(report);
  ScriptedPrompt prompt;
  EXPECT_EQ(CopyBookToBuffer(prompt, report, c.first, c.last, buffer, 1), c.copied);
  std::vector<std::string> columnA;
  for (int row = 1; row <= buffer.LastRow(); ++row) columnA.push_back(buffer.CellText(row, 1));
  EXPECT_EQ(columnA, c.columnA);
  EXPECT_EQ(report.ActiveSheet(), 2);
  if (c.copied) {
    EXPECT_TRUE(prompt.messages.empty());
    EXPECT_EQ(buffer.CellFormula(1, 2), buffer.CellText(1, 2)) << "a result, not a formula";
  } else {
    const Message invalid{"Gustline", "Invalid sheet range while copying workbook.",
                          PromptIcon::Exclamation, PromptButtons::Ok};
    EXPECT_EQ(prompt.messages, std::vector<Message>{invalid});
  }
}

INSTANTIATE_TEST_SUITE_P(
    Ranges, CopyBookToBufferTest,
    ::testing::Values(
        CopyCase{-1, 0, {"p1r1", "p1r2", "", "p2r1", "p2r2", "p2r3", "", "p3r1"}, true},
        CopyCase{3, 1, {"p3r1", "", "p2r1", "p2r2", "p2r3", "", "p1r1", "p1r2"}, true},
        CopyCase{2, 2, {"p2r1", "p2r2", "p2r3"}, true}, CopyCase{0, 3, {}, false},
        CopyCase{2, 0, {}, false}));

// The pages' hidden rows stay hidden where they land, and a column takes the widest of its
// widths, so that the export shows what the pages show.
TEST(CopyBookToBufferTest, KeepsHiddenRowsAndTheWidestColumns) {
  wb::Workbook report("ServerSS");
  wb::Workbook buffer("BufferSS");
  FillPages(report);
  report.SetActiveSheet(1);
  report.SetColumnWidth(1, 1, 30);
  report.SetRowHidden(2, true);
  report.SetActiveSheet(2);
  report.SetColumnWidth(1, 2, 12);
  report.SetRowHidden(3, true);
  ScriptedPrompt prompt;
  ASSERT_TRUE(CopyBookToBuffer(prompt, report, -1, 0, buffer, 1));
  const wb::Sheet& stacked = buffer.GetSheet(1);
  EXPECT_EQ(stacked.HiddenRows(), (std::vector<int>{2, 6}));
  EXPECT_EQ(stacked.ColumnWidths(), (std::map<int, double>{{1, 30}, {2, 12}}));
}

}  // namespace
}  // namespace gustline
