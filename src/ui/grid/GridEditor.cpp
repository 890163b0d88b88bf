#include "ui/grid/GridEditor.h"

#include <algorithm>

#include "core/FacilityErrorReport.h"
#include "core/workbook/model/Workbook.h"
#include "core/workbook/value/FacilityError.h"
#include "core/workbook/value/TextLines.h"

namespace gustline::grid {

std::string GridRowsText(std::string_view text) {
  std::string rows;
  for (const std::string_view line : wb::TextLines(text)) {
    if (line.find('\t') != std::string_view::npos) {
      rows += line;
    } else {
      bool inField = false;
      bool fieldSeen = false;
      for (const char c : line) {
        const bool separator = c == ' ' || c == ',' || c == ';';
        if (separator) {
          inField = false;
          continue;
        }
        if (!inField && fieldSeen) rows += '\t';
        rows += c;
        inField = fieldSeen = true;
      }
    }
    rows += "\r\n";
  }
  return rows;
}

GridEditor::GridEditor(wb::Workbook& book, TextClipboard& clipboard, Prompt& prompt)
    : book_(book), clipboard_(clipboard), prompt_(prompt) {}

template <typename Command>
void GridEditor::Run(Command command) {
  try {
    command();
  } catch (const wb::FacilityError& error) {
    ReportFacilityError(prompt_, error);
  }
}

void GridEditor::Enter(int row, int col, std::string_view entry) {
  Run([&] { book_.SetCellEntry(row, col, entry); });
}

void GridEditor::Cut() {
  Run([&] {
    copiedText_ = book_.ClipText();
    book_.CutSelection();
    clipboard_.SetText(copiedText_);
  });
}

void GridEditor::Copy() {
  Run([&] {
    copiedText_ = book_.ClipText();
    book_.CopySelection();
    clipboard_.SetText(copiedText_);
  });
}

void GridEditor::Paste() {
  Run([&] {
    const std::string text = clipboard_.Text();
    if (!copiedText_.empty() && text == copiedText_)
      book_.PasteSelection();
    else if (!text.empty())
      book_.SetClipText(GridRowsText(text));
  });
}

void GridEditor::Clear() {
  Run([&] { book_.ClearRange(3); });
}

void GridEditor::CopyDown() {
  Run([&] { book_.CopyDown(); });
}

int GridEditor::FirstEmptyRow(int col, int lastRow) {
  for (int row = 1; row <= lastRow; ++row)
    if (book_.CellText(row, col).empty()) return row;
  return 0;
}

}  // namespace gustline::grid
