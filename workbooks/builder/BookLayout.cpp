// The layout directives of a book and its blocks: column widths, cell styles, hidden rows,
// the print setup of the sheets and the default font.
#include "BookAssembler.h"
#include "PrintSetupKeys.h"
#include "SheetWords.h"
#include "StyleChange.h"
#include "core/workbook/model/Workbook.h"

namespace gustline::books {
namespace {

// "45:59" or "45", rows of the sheet or of the block.
std::pair<int, int> ReadRows(const std::string& text, const SourceLocation& where) {
  const auto colon = text.find(':');
  const auto first = ReadNumber(text.substr(0, colon));
  const auto last = colon == std::string::npos ? first : ReadNumber(text.substr(colon + 1));
  if (!first || !last || *first < 1 || *last < *first || *first != static_cast<int>(*first) ||
      *last != static_cast<int>(*last))
    throw SourceError(where, "'" + text + "' is not rows such as 45:59");
  return {static_cast<int>(*first), static_cast<int>(*last)};
}

}  // namespace

std::vector<int> BookAssembler::SheetsNamed(const SourceLine& line, std::vector<std::string>& words,
                                            const Frame& frame) {
  if (!frame.isBook) {
    if (frame.anchorRow != 1 || frame.anchorCol != 1)
      throw SourceError(line.where, "'" + words.front() +
                                        "' stands in a page block, one placed at A1 of its sheet");
    return {frame.sheet};
  }
  if (words.size() < 2) throw SourceError(line.where, "the line needs its sheet, or *");
  std::vector<int> sheets;
  if (words[1] == "*") {
    for (int sheet = 1; sheet <= declaredSheets_; ++sheet) sheets.push_back(sheet);
  } else {
    JoinSheetWord(words, 1, [this](std::string_view name) { return IsSheet(name); });
    sheets.push_back(SheetNumber(line.where, SheetNameText(words[1])));
  }
  words.erase(words.begin() + 1);
  return sheets;
}

void BookAssembler::SetColumns(const SourceLine& line, std::vector<std::string> words,
                               const Frame& frame) {
  const std::vector<int> sheets = SheetsNamed(line, words, frame);
  if (words.size() < 2)
    throw SourceError(line.where, frame.isBook ? "usage: columns SHEET COLUMN=WIDTH ..."
                                               : "usage: columns COLUMN=WIDTH ...");
  for (std::size_t i = 1; i < words.size(); ++i) {
    const auto equals = words[i].find('=');
    const auto area = wb::ParseAreaText(words[i].substr(0, equals) + "1");
    const auto width =
        equals == std::string::npos ? std::nullopt : ReadNumber(words[i].substr(equals + 1));
    if (!area || !width || *width <= 0)
      throw SourceError(line.where, "expected COLUMN=WIDTH, not '" + words[i] + "'");
    for (int sheet : sheets) {
      book_.SetActiveSheet(sheet);
      book_.SetColumnWidth(area->firstCol, area->firstCol, *width);
    }
  }
}

void BookAssembler::SetStyle(const SourceLine& line, std::vector<std::string> words,
                             const Frame& frame) {
  if (frame.isBook) JoinQualifiedWord(words, 1);
  if (words.size() < 3) throw SourceError(line.where, "usage: style RANGE KEY[=VALUE] ...");
  const PlacedArea placed = LocateArea(line.where, words[1], frame);
  const StyleChange change = ReadStyleChange(words, 2, line.where);
  const wb::Area& area = placed.area;
  for (int row = area.firstRow; row <= area.lastRow; ++row) {
    for (int col = area.firstCol; col <= area.lastCol; ++col) {
      wb::CellStyle style = StyleOf({placed.sheet, row, col});
      ApplyStyleChange(change, area, row, col, style);
      book_.SetCellStyle(row, col, style);
    }
  }
}

void BookAssembler::HideRows(const SourceLine& line, std::vector<std::string> words,
                             const Frame& frame) {
  if (frame.isBook) JoinQualifiedWord(words, 1);
  if (words.size() != 2)
    throw SourceError(line.where, frame.isBook ? "usage: hide SHEET!ROWS" : "usage: hide ROWS");
  const auto [sheet, rowsText] = SplitSheet(line.where, words[1], frame);
  const auto [first, last] = ReadRows(rowsText, line.where);
  if (frame.anchorRow + last - 1 > wb::kMaxRow)
    throw SourceError(line.where, "'" + words[1] + "' falls off the sheet at this anchor");
  book_.SetActiveSheet(sheet);
  book_.HideRows(frame.anchorRow + first - 1, frame.anchorRow + last - 1, true);
}

void BookAssembler::SetPage(const SourceLine& line, std::vector<std::string> words,
                            const Frame& frame) {
  for (int sheet : SheetsNamed(line, words, frame))
    ApplyPrintKeys(words, 1, line.where, book_.GetSheet(sheet).Print());
}

void BookAssembler::SetDefaultFont(const SourceLine& line, const std::vector<std::string>& words) {
  const auto size = words.size() >= 3 ? ReadNumber(words.back()) : std::nullopt;
  if (!size || *size <= 0) throw SourceError(line.where, "usage: default-font NAME SIZE");
  if (!written_.empty())
    throw SourceError(line.where, "'default-font' stands before the first cell of the book");
  std::string name = Unquote(words[1]);
  for (std::size_t i = 2; i + 1 < words.size(); ++i) name += " " + words[i];
  defaultStyle_ = wb::CellStyle{};
  defaultStyle_->font.name = name;
  defaultStyle_->font.size = *size;
}

}  // namespace gustline::books
