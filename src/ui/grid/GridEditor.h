#pragma once

#include <string>
#include <string_view>

namespace gustline {
class Prompt;
}

namespace gustline::wb {
class Workbook;
}

namespace gustline::grid {

// The system's text clipboard as a grid sees it.
class TextClipboard {
 public:
  virtual ~TextClipboard() = default;
  virtual std::string Text() const = 0;
  virtual void SetText(const std::string& text) = 0;
};

// A clipboard of the process alone, for tests and for running without a display.
class MemoryClipboard : public TextClipboard {
 public:
  std::string Text() const override { return text_; }
  void SetText(const std::string& text) override { text_ = text; }

 private:
  std::string text_;
};

// Text copied elsewhere as grid rows: lines at CR LF or LF; a line without a TAB, as a
// text file of coordinates has it, splits at runs of blanks, commas and semicolons.
std::string GridRowsText(std::string_view text);

// The edit commands of a grid over the active sheet of a book. Copy and Cut take the
// selection to the engine's clipboard, formulas and formats, and its text to the system's;
// Paste takes the engine's block back while the system clipboard still holds what the grid
// put there, and otherwise the system's text as rows. A facility error is reported through
// the prompt, and the cells stay as they were.
class GridEditor {
 public:
  GridEditor(wb::Workbook& book, TextClipboard& clipboard, Prompt& prompt);

  wb::Workbook& Book() { return book_; }

  // A cell as typed: "=..." a formula, a number, or text; empty clears it.
  void Enter(int row, int col, std::string_view entry);
  // On the book's selection.
  void Cut();
  void Copy();
  void Paste();
  void Clear();
  void CopyDown();

  // The first row from 1 to `lastRow` whose cell in `col` shows nothing; 0 when none.
  int FirstEmptyRow(int col, int lastRow);

 private:
  template <typename Command>
  void Run(Command command);

  wb::Workbook& book_;
  TextClipboard& clipboard_;
  Prompt& prompt_;
  std::string copiedText_;
};

}  // namespace gustline::grid
