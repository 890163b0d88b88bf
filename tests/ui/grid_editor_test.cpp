// The edit commands of the dialogs' grids, over a book and a clipboard of the process.
#include <gtest/gtest.h>

#include "core/Prompt.h"
#include "core/workbook/model/Workbook.h"
#include "ui/grid/GridEditor.h"

namespace gustline::grid {
namespace {

TEST(GridRowsText, TabsAsTheyComeOtherLinesSplitAtBlanksCommasAndSemicolons) {
  const std::pair<const char*, const char*> cases[] = {
      {"0\t0\r\n0\t60\r\n", "0\t0\r\n0\t60\r\n"},
      {"0 0\n50,  60\n", "0\t0\r\n50\t60\r\n"},
      {"  12.5 ; 30  \n\n7", "12.5\t30\r\n\r\n7\r\n"},
      {"a\t b c", "a\t b c\r\n"},
  };
  for (const auto& [text, rows] : cases) EXPECT_EQ(GridRowsText(text), rows) << text;
}

class GridEditorTest : public ::testing::Test {
 protected:
  void SetUp() override {
    book.SetCellNumber(1, 1, 10);
    book.SetCellNumber(1, 2, 20);
    book.SetCellFormula(1, 3, "A1+B1");
  }
  wb::Workbook book;
  MemoryClipboard clipboard;
  ScriptedPrompt prompt;
  GridEditor editor{book, clipboard, prompt};
};

TEST_F(GridEditorTest, CopyAndPasteInsideTheGridKeepFormulas) {
  book.SetSelection("A1:C1");
  editor.Copy();
  EXPECT_EQ(clipboard.Text(), "10\t20\t30\r\n");
  book.SetSelection("A2");
  editor.Paste();
  EXPECT_EQ(book.CellFormula(2, 3), "A2+B2");
  EXPECT_EQ(book.CellNumber(2, 3), 30);
}

TEST_F(GridEditorTest, TextFromElsewhereIsPastedAsRows) {
  book.SetSelection("A1:C1");
  editor.Copy();
  clipboard.SetText("0 0\n0 60\n50 60\n");
  book.SetSelection("A5");
  editor.Paste();
  EXPECT_EQ(book.CellNumber(6, 2), 60);
  EXPECT_EQ(book.CellNumber(7, 1), 50);
  EXPECT_EQ(book.LastRow(), 7);
}

TEST_F(GridEditorTest, CutClearAndCopyDown) {
  book.SetSelection("A1:C3");
  editor.CopyDown();
  EXPECT_EQ(book.CellFormula(3, 3), "A3+B3");
  book.SetSelection("B2:B3");
  editor.Clear();
  EXPECT_EQ(book.CellNumber(3, 3), 10);
  book.SetSelection("A1");
  editor.Cut();
  EXPECT_EQ(clipboard.Text(), "10\r\n");
  EXPECT_EQ(book.CellText(1, 1), "");
  EXPECT_EQ(book.CellNumber(1, 3), 20);
}

TEST_F(GridEditorTest, ABadEntryIsReportedAndTheCellKept) {
  editor.Enter(1, 1, "=1+");
  ASSERT_EQ(prompt.messages.size(), 1U);
  EXPECT_EQ(prompt.messages[0].title, "Error");
  EXPECT_EQ(book.CellNumber(1, 1), 10);
  editor.Enter(1, 1, "12.5");
  EXPECT_EQ(book.CellNumber(1, 3), 32.5);
}

TEST_F(GridEditorTest, FirstEmptyRowLooksAtTheShownText) {
  book.SetCellFormula(2, 1, "IF(ISNUMBER(B2),1,\"\")");
  EXPECT_EQ(editor.FirstEmptyRow(1, 100), 2);
  book.SetCellNumber(2, 2, 1);
  EXPECT_EQ(editor.FirstEmptyRow(1, 100), 3);
  EXPECT_EQ(editor.FirstEmptyRow(1, 2), 0);
}

}  // namespace
}  // namespace gustline::grid
