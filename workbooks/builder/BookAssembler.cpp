#include "BookAssembler.h"

#include <algorithm>
#include <cctype>
#include <set>

#include "CsvTable.h"
#include "FormulaCheck.h"
#include "SheetWords.h"
#include "core/workbook/address/CellAddress.h"
#include "core/workbook/formula/Formula.h"
#include "core/workbook/model/Workbook.h"
#include "core/workbook/value/FacilityError.h"

namespace gustline::books {
namespace {

// Nested includes deeper than this can only be a block that includes itself.
constexpr int kMaxIncludeDepth = 16;

std::string Upper(std::string_view text) {
  std::string out(text);
  std::transform(out.begin(), out.end(), out.begin(),
                 [](unsigned char c) { return static_cast<char>(std::toupper(c)); });
  return out;
}

std::string Trimmed(std::string_view text) {
  const auto first = text.find_first_not_of(" \t");
  if (first == std::string_view::npos) return {};
  return std::string(text.substr(first, text.find_last_not_of(" \t") - first + 1));
}

// "KEY=VALUE" with the value unquoted.
std::pair<std::string, std::string> SplitAssignment(const std::string& word,
                                                    const SourceLocation& where) {
  const auto equals = word.find('=');
  if (equals == std::string::npos || equals == 0)
    throw SourceError(where, "expected NAME=VALUE, not '" + word + "'");
  return {word.substr(0, equals), Unquote(word.substr(equals + 1))};
}

}  // namespace

void BookAssembler::ReadBook(const std::filesystem::path& bookFile) {
  Frame frame;
  frame.file = bookFile;
  frame.isBook = true;
  bookDir_ = bookFile.parent_path();
  std::vector<SourceLine> lines = ReadSourceLines(bookFile);
  for (auto& line : lines) line.text = Substitute(line.text, {}, line.where);
  Run(lines, frame);
  ShowFirstSheet();
}

void BookAssembler::CheckFormulas() const {
  for (const auto& placed : formulas_) {
    book_.SetActiveSheet(placed.at.sheet);
    const wb::FormulaHost host{&book_, placed.at.sheet - 1, {placed.at.row, placed.at.col}};
    const auto formula = wb::ParseFormula(book_.CellFormula(placed.at.row, placed.at.col), host);
    const auto mayBeUndefined = [this](std::string_view name) {
      return undefined_.contains(Upper(name));
    };
    if (auto fault = FormulaFault(*formula, book_, mayBeUndefined); !fault.empty())
      throw SourceError(placed.where, fault);
  }
  ShowFirstSheet();
}

void BookAssembler::ShowFirstSheet() const {
  book_.SetActiveSheet(1);
  book_.SetActiveCell(1, 1);
}

void BookAssembler::Run(const std::vector<SourceLine>& lines, const Frame& outer) {
  Frame frame = outer;
  Section section = Section::None;
  GridCursor grid;
  for (const auto& line : lines) {
    if (line.text.front() == '|') {
      if (section == Section::Rows)
        PlaceRow(line, frame);
      else if (section == Section::Grid)
        PlaceGridRow(line, frame, grid);
      else
        throw SourceError(line.where, "a table row outside a 'rows' or 'grid' section");
      continue;
    }
    Directive(line, SplitWords(line.text, line.where), frame, section, grid);
  }
}

void BookAssembler::Directive(const SourceLine& line, const std::vector<std::string>& words,
                              Frame& frame, Section& section, GridCursor& grid) {
  const std::string& keyword = words.front();
  const auto needArgs = [&](std::size_t count, const char* usage) {
    if (words.size() != count) throw SourceError(line.where, std::string("usage: ") + usage);
  };
  static const std::set<std::string> bookOnly = {"book", "sheet", "library", "default-font",
                                                 "undefined"};
  if (bookOnly.contains(keyword) && !frame.isBook)
    throw SourceError(line.where, "'" + keyword + "' stands in a book file");
  if (keyword == "book") {
    needArgs(2, "book NAME");
    book_.SetBookName(words[1]);
  } else if (keyword == "sheet") {
    if (words.size() < 2) throw SourceError(line.where, "usage: sheet NAME");
    DeclareSheet(line, SheetNameText(Trimmed(line.text.substr(keyword.size()))));
  } else if (keyword == "columns") {
    SetColumns(line, words, frame);
  } else if (keyword == "page") {
    SetPage(line, words, frame);
  } else if (keyword == "library") {
    AddLibrary(line, words, frame);
  } else if (keyword == "default-font") {
    SetDefaultFont(line, words);
  } else if (keyword == "undefined") {
    AllowUndefined(line, words);
  } else if (keyword == "style") {
    SetStyle(line, words, frame);
  } else if (keyword == "hide") {
    HideRows(line, words, frame);
  } else if (keyword == "rows") {
    if (frame.isBook) {
      auto sheetWords = words;
      JoinSheetWord(sheetWords, 1, [this](std::string_view name) { return IsSheet(name); });
      if (sheetWords.size() != 2) throw SourceError(line.where, "usage: rows SHEET");
      frame.sheet = SheetNumber(line.where, SheetNameText(sheetWords[1]));
    } else {
      needArgs(1, "rows");
    }
    section = Section::Rows;
  } else if (keyword == "grid") {
    auto cellWords = words;
    if (frame.isBook) JoinQualifiedWord(cellWords, 1);
    if (cellWords.size() != 2)
      throw SourceError(line.where, frame.isBook ? "usage: grid SHEET!CELL" : "usage: grid CELL");
    const Placement start = Locate(line.where, cellWords[1], frame, &grid.row, &grid.col);
    if (frame.isBook) frame.sheet = start.sheet;
    section = Section::Grid;
  } else if (keyword == "table") {
    PlaceTable(line, words, frame);
  } else if (keyword == "fill") {
    FillRange(line, words, frame);
  } else if (keyword == "name") {
    DefineNameDirective(line, frame);
  } else if (keyword == "include") {
    Include(line, words, frame);
  } else if (keyword == "param") {
    throw SourceError(line.where, "'param' stands in a block file, before its rows");
  } else {
    throw SourceError(line.where, "unknown directive '" + keyword + "'");
  }
}

void BookAssembler::Include(const SourceLine& line, std::vector<std::string> words,
                            const Frame& outer) {
  if (outer.isBook) JoinQualifiedWord(words, 3);
  if (words.size() < 4 || words[2] != "at" || (words.size() > 4 && words[4] != "with"))
    throw SourceError(line.where, "usage: include BLOCK at CELL [with NAME=VALUE ...]");
  if (outer.depth >= kMaxIncludeDepth)
    throw SourceError(line.where, "includes nest too deep; does a block include itself?");

  Frame inner;
  inner.file = FindBlock(line, words[1], outer);
  const Placement anchor = Locate(line.where, words[3], outer);
  inner.sheet = anchor.sheet;
  inner.anchorRow = anchor.row;
  inner.anchorCol = anchor.col;
  inner.depth = outer.depth + 1;

  const std::vector<SourceLine> lines = ReadSourceLines(inner.file);

  std::map<std::string, std::string> params;
  std::map<std::string, SourceLocation> required;
  std::vector<SourceLine> body;
  for (const auto& blockLine : lines) {
    const auto blockWords = SplitWords(blockLine.text, blockLine.where);
    if (blockWords.front() != "param") {
      body.push_back(blockLine);
      continue;
    }
    if (blockWords.size() != 2)
      throw SourceError(blockLine.where, "usage: param NAME or param NAME=DEFAULT");
    if (blockWords[1].find('=') == std::string::npos) {
      params[blockWords[1]] = {};
      required[blockWords[1]] = blockLine.where;
    } else {
      auto [name, value] = SplitAssignment(blockWords[1], blockLine.where);
      params[name] = value;
    }
  }
  for (std::size_t i = 5; i < words.size(); ++i) {
    auto [name, value] = SplitAssignment(words[i], line.where);
    if (!params.contains(name))
      throw SourceError(line.where, "block '" + words[1] + "' has no parameter '" + name + "'");
    params[name] = value;
    required.erase(name);
  }
  if (!required.empty())
    throw SourceError(line.where, "block '" + words[1] + "' needs the parameter '" +
                                      required.begin()->first + "'");
  for (auto& blockLine : body) blockLine.text = Substitute(blockLine.text, params, blockLine.where);
  Run(body, inner);
}

std::filesystem::path BookAssembler::FindBlock(const SourceLine& line, const std::string& block,
                                               const Frame& outer) const {
  std::vector<std::filesystem::path> folders = {outer.file.parent_path(), bookDir_};
  folders.insert(folders.end(), libraries_.begin(), libraries_.end());
  for (const auto& folder : folders) {
    auto file = folder / (block + ".cells");
    if (std::filesystem::is_regular_file(file)) return file;
  }
  throw SourceError(line.where, "no block '" + block + "' (" +
                                    (outer.file.parent_path() / (block + ".cells")).string() +
                                    " or the book's folder and libraries)");
}

void BookAssembler::DeclareSheet(const SourceLine& line, const std::string& name) {
  if (book_.FindSheet(name) != 0 && declaredSheets_ > 0)
    throw SourceError(line.where, "sheet '" + name + "' is declared twice");
  if (declaredSheets_ == 0 && book_.SheetCount() > 0)
    book_.SetSheetName(1, name);
  else
    book_.AddSheet(name);
  ++declaredSheets_;
}

void BookAssembler::AddLibrary(const SourceLine& line, const std::vector<std::string>& words,
                               const Frame& frame) {
  if (words.size() != 2) throw SourceError(line.where, "usage: library PATH");
  const auto folder = frame.file.parent_path() / Unquote(words[1]);
  if (!std::filesystem::is_directory(folder))
    throw SourceError(line.where, "no library folder '" + folder.string() + "'");
  libraries_.push_back(folder);
}

void BookAssembler::AllowUndefined(const SourceLine& line, const std::vector<std::string>& words) {
  if (words.size() < 2) throw SourceError(line.where, "usage: undefined NAME ...");
  for (std::size_t i = 1; i < words.size(); ++i) {
    if (const auto found = names_.find(Upper(words[i])); found != names_.end())
      throw SourceError(line.where,
                        "name '" + words[i] + "' is defined at " + found->second.Text());
    undefined_.emplace(Upper(words[i]), line.where);
  }
}

void BookAssembler::DefineNameDirective(const SourceLine& line, const Frame& frame) {
  const std::string rest = line.text.substr(std::string_view("name").size());
  const auto equals = rest.find('=');
  if (equals == std::string::npos) throw SourceError(line.where, "usage: name NAME = RANGE");
  const std::string name = Trimmed(rest.substr(0, equals));
  const std::string range = Trimmed(rest.substr(equals + 1));
  if (name.empty()) return;

  const PlacedArea placed = LocateArea(line.where, range, frame);
  DefineName(name,
             QuotedSheetName(book_.SheetName(placed.sheet)) + "!" + wb::AreaText(placed.area, true),
             line.where);
}

void BookAssembler::PlaceRow(const SourceLine& line, const Frame& frame) {
  const auto fields = SplitRow(line.text, line.where);
  if (fields.size() < 4 || fields.size() > 6)
    throw SourceError(line.where, "a row is | CELL | LABEL | NAMES | TYPE | VALUE | NOTE |");
  int authoredRow = 0;
  int authoredCol = 0;
  const Placement at = Locate(line.where, fields[0].text, frame, &authoredRow, &authoredCol);
  const std::string& label = fields[1].text;
  const std::string& type = fields[3].text;
  const Field value = fields.size() > 4 ? fields[4] : Field{};

  if (type == "heading") {
    if (!value.text.empty()) throw SourceError(line.where, "a heading has no value");
    PutText(at, label, line.where);
    MakeBold(at);
  } else {
    if (at.col == 1) throw SourceError(line.where, "the label needs a column left of the value");
    if (!label.empty()) PutText({at.sheet, at.row, at.col - 1}, label, line.where);
    if (value.text.empty()) Claim(at, line.where);
    if (type == "number") {
      if (!value.text.empty()) {
        const auto number = ReadNumber(value.text);
        if (!number || value.quoted)
          throw SourceError(line.where, "'" + value.text + "' is not a number");
        PutNumber(at, *number, line.where);
      }
    } else if (type == "text") {
      if (!value.text.empty()) PutText(at, value.text, line.where);
    } else if (type == "formula") {
      if (value.quoted || value.text.empty() || value.text.front() != '=')
        throw SourceError(line.where, "a formula starts with '='");
      PutFormula(at, authoredRow, authoredCol, std::string_view(value.text).substr(1), line.where);
    } else {
      throw SourceError(line.where,
                        "the type is heading, text, number or formula, not '" + type + "'");
    }
  }
  if (fields.size() > 5 && !fields[5].text.empty())
    PutText({at.sheet, at.row, at.col + 1}, fields[5].text, line.where);

  const std::string cellText =
      QuotedSheetName(book_.SheetName(at.sheet)) + "!" + wb::CellRefText(at.row, at.col, true);
  for (const auto& name : SplitWords(fields[2].text, line.where))
    if (name != "-") DefineName(name, cellText, line.where);
}

void BookAssembler::PlaceGridRow(const SourceLine& line, const Frame& frame, GridCursor& grid) {
  const auto fields = SplitRow(line.text, line.where);
  for (std::size_t i = 0; i < fields.size(); ++i) {
    if (fields[i].text.empty() && !fields[i].quoted) continue;
    const int authoredCol = grid.col + static_cast<int>(i);
    const Placement at{frame.sheet, frame.anchorRow + grid.row - 1,
                       frame.anchorCol + authoredCol - 1};
    if (at.row > wb::kMaxRow || at.col > wb::kMaxCol)
      throw SourceError(line.where, "the row falls off the sheet at this anchor");
    PutEntry(at, grid.row, authoredCol, fields[i], line.where);
  }
  ++grid.row;
}

void BookAssembler::PlaceTable(const SourceLine& line, std::vector<std::string> words,
                               const Frame& frame) {
  if (frame.isBook) JoinQualifiedWord(words, 1);
  const bool filtered = words.size() > 6;
  if (words.size() < 6 || (filtered && (words[6] != "where" || words.size() == 7)))
    throw SourceError(line.where,
                      "usage: table CELL FILE ROW-KEY COLUMN-KEY VALUE [where COLUMN=VALUE ...]");
  std::vector<CsvFilter> filters;
  for (std::size_t i = 7; i < words.size(); ++i) {
    auto [column, value] = SplitAssignment(words[i], line.where);
    filters.push_back({column, value});
  }
  const auto file = frame.file.parent_path() / Unquote(words[2]);
  const CsvGrid grid = ReadCsvGrid(file, {words[3], words[4], words[5]}, filters, line.where);

  const Placement corner = Locate(line.where, words[1], frame);
  const auto put = [&](std::size_t down, std::size_t right, double number) {
    const Placement at{corner.sheet, corner.row + static_cast<int>(down),
                       corner.col + static_cast<int>(right)};
    if (at.row > wb::kMaxRow || at.col > wb::kMaxCol)
      throw SourceError(line.where, "the table falls off the sheet at this anchor");
    PutNumber(at, number, line.where);
  };
  for (std::size_t c = 0; c < grid.columnKeys.size(); ++c) put(0, c + 1, grid.columnKeys[c]);
  for (std::size_t r = 0; r < grid.rowKeys.size(); ++r) {
    put(r + 1, 0, grid.rowKeys[r]);
    for (std::size_t c = 0; c < grid.columnKeys.size(); ++c) put(r + 1, c + 1, grid.values[r][c]);
  }
}

// The formula is read at the range's first cell and written into every cell of the range,
// its relative references following, as a formula copied across a range does.
void BookAssembler::FillRange(const SourceLine& line, std::vector<std::string> words,
                              const Frame& frame) {
  if (frame.isBook) JoinQualifiedWord(words, 1);
  const auto equals = line.text.find('=');
  if (words.size() < 3 || equals == std::string::npos)
    throw SourceError(line.where, "usage: fill RANGE =FORMULA");
  const PlacedArea placed = LocateArea(line.where, words[1], frame);
  const int authoredRow = placed.area.firstRow - frame.anchorRow + 1;
  const int authoredCol = placed.area.firstCol - frame.anchorCol + 1;
  const std::string formula = Trimmed(line.text.substr(equals + 1));
  for (int row = placed.area.firstRow; row <= placed.area.lastRow; ++row)
    for (int col = placed.area.firstCol; col <= placed.area.lastCol; ++col)
      PutFormula({placed.sheet, row, col}, authoredRow, authoredCol, formula, line.where);
}

BookAssembler::Placement BookAssembler::Locate(const SourceLocation& where, const std::string& text,
                                               const Frame& frame, int* authoredRow,
                                               int* authoredCol) const {
  const auto [sheet, cellText] = SplitSheet(where, text, frame);
  const auto area = wb::ParseAreaText(cellText);
  if (!area || area->firstRow != area->lastRow || area->firstCol != area->lastCol)
    throw SourceError(where, "'" + text + "' is not a cell");
  if (authoredRow) *authoredRow = area->firstRow;
  if (authoredCol) *authoredCol = area->firstCol;
  const Placement at{sheet, frame.anchorRow + area->firstRow - 1,
                     frame.anchorCol + area->firstCol - 1};
  if (at.row > wb::kMaxRow || at.col > wb::kMaxCol)
    throw SourceError(where, "'" + text + "' falls off the sheet at this anchor");
  return at;
}

BookAssembler::PlacedArea BookAssembler::LocateArea(const SourceLocation& where,
                                                    const std::string& text,
                                                    const Frame& frame) const {
  const auto [sheet, areaText] = SplitSheet(where, text, frame);
  auto area = wb::ParseAreaText(areaText);
  if (!area) throw SourceError(where, "'" + text + "' is not a range");
  area->firstRow += frame.anchorRow - 1;
  area->lastRow += frame.anchorRow - 1;
  area->firstCol += frame.anchorCol - 1;
  area->lastCol += frame.anchorCol - 1;
  if (area->lastRow > wb::kMaxRow || area->lastCol > wb::kMaxCol)
    throw SourceError(where, "'" + text + "' falls off the sheet at this anchor");
  return {sheet, *area};
}

std::pair<int, std::string> BookAssembler::SplitSheet(const SourceLocation& where,
                                                      const std::string& text,
                                                      const Frame& frame) const {
  const auto bang = text.rfind('!');
  if (bang == std::string::npos) {
    if (frame.sheet == 0) throw SourceError(where, "'" + text + "' needs its sheet: Sheet!" + text);
    return {frame.sheet, text};
  }
  if (!frame.isBook)
    throw SourceError(where, "a block places cells relative to its anchor, without 'Sheet!'");
  return {SheetNumber(where, SheetNameText(text.substr(0, bang))), text.substr(bang + 1)};
}

int BookAssembler::SheetNumber(const SourceLocation& where, const std::string& name) const {
  if (!IsSheet(name)) throw SourceError(where, "no sheet '" + name + "' is declared");
  return book_.FindSheet(name);
}

bool BookAssembler::IsSheet(std::string_view name) const {
  return declaredSheets_ > 0 && book_.FindSheet(name) != 0;
}

void BookAssembler::Claim(const Placement& at, const SourceLocation& where) {
  const auto [found, added] = written_.emplace(std::tuple{at.sheet, at.row, at.col}, where);
  if (added) {
    if (defaultStyle_) book_.SetCellStyle(at.row, at.col, StyleOf(at));
    return;
  }
  throw SourceError(where, "cell " + book_.SheetName(at.sheet) + "!" +
                               wb::CellRefText(at.row, at.col, false) + " is already written at " +
                               found->second.Text());
}

void BookAssembler::PutText(const Placement& at, const std::string& text,
                            const SourceLocation& where) {
  Claim(at, where);
  book_.SetActiveSheet(at.sheet);
  book_.SetCellText(at.row, at.col, text);
}

void BookAssembler::PutNumber(const Placement& at, double number, const SourceLocation& where) {
  Claim(at, where);
  book_.SetActiveSheet(at.sheet);
  book_.SetCellNumber(at.row, at.col, number);
}

void BookAssembler::PutFormula(const Placement& at, int authoredRow, int authoredCol,
                               std::string_view formula, const SourceLocation& where) {
  Claim(at, where);
  const int sheetIndex = at.sheet - 1;
  try {
    const auto parsed = wb::ParseFormula(formula, {&book_, sheetIndex, {authoredRow, authoredCol}});
    const std::string placed = wb::FormulaText(*parsed, {&book_, sheetIndex, {at.row, at.col}});
    book_.SetActiveSheet(at.sheet);
    book_.SetCellEntry(at.row, at.col, "=" + placed);
  } catch (const wb::FacilityError& error) {
    throw SourceError(where, "formula '" + std::string(formula) + "': " + error.what());
  }
  formulas_.push_back({at, where});
}

void BookAssembler::PutEntry(const Placement& at, int authoredRow, int authoredCol,
                             const Field& entry, const SourceLocation& where) {
  const auto number = entry.quoted ? std::nullopt : ReadNumber(entry.text);
  if (!entry.quoted && entry.text.front() == '=') {
    PutFormula(at, authoredRow, authoredCol, std::string_view(entry.text).substr(1), where);
  } else if (number) {
    PutNumber(at, *number, where);
  } else {
    PutText(at, entry.text, where);
  }
}

void BookAssembler::MakeBold(const Placement& at) {
  wb::CellStyle style = StyleOf(at);
  style.font.bold = true;
  book_.SetCellStyle(at.row, at.col, style);
}

wb::CellStyle BookAssembler::StyleOf(const Placement& at) const {
  book_.SetActiveSheet(at.sheet);
  const wb::CellStyle& own = book_.GetCellStyle(at.row, at.col);
  if (defaultStyle_ && own == wb::CellStyle{}) return *defaultStyle_;
  return own;
}

void BookAssembler::DefineName(const std::string& name, const std::string& refersTo,
                               const SourceLocation& where) {
  if (const auto allowed = undefined_.find(Upper(name)); allowed != undefined_.end())
    throw SourceError(where,
                      "name '" + name + "' is declared undefined at " + allowed->second.Text());
  const auto [found, added] = names_.emplace(Upper(name), where);
  if (!added)
    throw SourceError(where, "name '" + name + "' is already defined at " + found->second.Text());
  try {
    book_.SetDefinedName(name, refersTo);
  } catch (const wb::FacilityError& error) {
    throw SourceError(where, "name '" + name + "': " + error.what());
  }
}

}  // namespace gustline::books
