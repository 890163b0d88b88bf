#include <algorithm>
#include <charconv>
#include <cmath>
#include <set>
#include <string>
#include <unordered_set>
#include <vector>

#include "core/workbook/address/CellAddress.h"
#include "core/workbook/io/NativeFormat.h"
#include "core/workbook/model/Workbook.h"
#include "core/workbook/value/FacilityError.h"
#include "core/workbook/value/TextCompare.h"
#include "core/workbook/value/Utf8.h"

namespace gustline::wb {
namespace {

constexpr std::size_t kMaxFormula = 65536;

// `what` may quote the file.
[[noreturn]] void Corrupt(std::size_t lineNumber, const std::string& what) {
  throw FacilityError(errc::kFileCorrupt, "The workbook file is damaged: line " +
                                              std::to_string(lineNumber) + ": " +
                                              PrintableText(what));
}

int HexDigit(char c) {
  if (c >= '0' && c <= '9') return c - '0';
  if (c >= 'A' && c <= 'F') return c - 'A' + 10;
  if (c >= 'a' && c <= 'f') return c - 'a' + 10;
  return -1;
}

// One token of a line: `text`, or `key=text` when a key stands before "=".
struct Token {
  std::string key;
  std::string text;
  bool quoted = false;
};

// A line taken apart: its tokens, and the raw text after ":= " for formulas.
struct Line {
  std::size_t number = 0;
  std::vector<Token> tokens;
  std::optional<std::string> rest;
};

class LineReader {
 public:
  explicit LineReader(std::size_t number) : number_(number) {}

  Line Split(std::string_view text) {
    Line line{number_, {}, std::nullopt};
    std::size_t i = 0;
    while (i < text.size()) {
      if (text[i] == ' ') {
        ++i;
        continue;
      }
      if (text.substr(i, 2) == ":=" && (i + 2 == text.size() || text[i + 2] == ' ')) {
        line.rest = Unescape(text.substr(std::min(i + 3, text.size())), false);
        break;
      }
      line.tokens.push_back(ReadToken(text, i));
    }
    return line;
  }

 private:
  Token ReadToken(std::string_view text, std::size_t& i) {
    Token token;
    const std::size_t start = i;
    while (i < text.size() && text[i] != ' ' && text[i] != '"' && text[i] != '=') ++i;
    if (i < text.size() && text[i] == '=' && i > start) {
      token.key = std::string(text.substr(start, i - start));
      ++i;
    } else {
      i = start;
    }
    if (i < text.size() && text[i] == '"') {
      const std::size_t close = ClosingQuote(text, i + 1);
      token.text = Unescape(text.substr(i + 1, close - i - 1), true);
      token.quoted = true;
      i = close + 1;
      if (i < text.size() && text[i] != ' ') Corrupt(number_, "text after a closing quote");
      return token;
    }
    const std::size_t valueStart = i;
    while (i < text.size() && text[i] != ' ') {
      if (text[i] == '"') Corrupt(number_, "a quote inside a word");
      ++i;
    }
    token.text = std::string(text.substr(valueStart, i - valueStart));
    return token;
  }

  std::size_t ClosingQuote(std::string_view text, std::size_t from) const {
    for (std::size_t i = from; i < text.size(); ++i) {
      if (text[i] == '\\')
        ++i;
      else if (text[i] == '"')
        return i;
    }
    Corrupt(number_, "a text without its closing quote");
  }

  std::string Unescape(std::string_view text, bool inQuotes) const {
    std::string out;
    for (std::size_t i = 0; i < text.size(); ++i) {
      const char c = text[i];
      if (c != '\\') {
        out += c;
        continue;
      }
      if (++i >= text.size()) Corrupt(number_, "a lone backslash");
      switch (text[i]) {
        case '\\':
          out += '\\';
          break;
        case 'n':
          out += '\n';
          break;
        case 'r':
          out += '\r';
          break;
        case 't':
          out += '\t';
          break;
        case '"':
          if (!inQuotes) Corrupt(number_, "an unknown escape");
          out += '"';
          break;
        case 'x': {
          const int high = i + 1 < text.size() ? HexDigit(text[i + 1]) : -1;
          const int low = i + 2 < text.size() ? HexDigit(text[i + 2]) : -1;
          if (high < 0 || low < 0) Corrupt(number_, "a bad \\x escape");
          out += static_cast<char>(high * 16 + low);
          i += 2;
          break;
        }
        default:
          Corrupt(number_, "an unknown escape");
      }
    }
    return out;
  }

  std::size_t number_;
};

// Reads the fields of one line; every conversion checks its range.
class Fields {
 public:
  explicit Fields(const Line& line) : line_(line) {}

  [[noreturn]] void Fail(const std::string& what) const { Corrupt(line_.number, what); }

  // The positional tokens after the keyword.
  std::size_t Count() const { return line_.tokens.size(); }
  const Token& At(std::size_t index) const {
    if (index >= line_.tokens.size()) Fail("a field is missing");
    return line_.tokens[index];
  }

  // Calls fn(key, text, quoted) for each key=value token from `from` on; unknown keys fail.
  template <typename Fn>
  void ForEachKey(std::size_t from, Fn&& fn) const {
    std::set<std::string> seen;
    for (std::size_t i = from; i < line_.tokens.size(); ++i) {
      const Token& token = line_.tokens[i];
      if (token.key.empty()) Fail("a field without a key");
      if (!seen.insert(token.key).second) Fail("the field " + token.key + " twice");
      if (!fn(token)) Fail("an unknown field " + token.key);
    }
  }

  double Number(const Token& token, double low, double high) const {
    double number = 0;
    const char* end = token.text.data() + token.text.size();
    const auto [ptr, ec] = std::from_chars(token.text.data(), end, number);
    if (token.quoted || ec != std::errc() || ptr != end || token.text.empty() ||
        !(number >= low && number <= high))
      Fail("a bad number '" + token.text + "'");
    return number;
  }

  int Integer(const Token& token, int low, int high) const {
    int number = 0;
    const char* end = token.text.data() + token.text.size();
    const auto [ptr, ec] = std::from_chars(token.text.data(), end, number);
    if (token.quoted || ec != std::errc() || ptr != end || token.text.empty() || number < low ||
        number > high)
      Fail("a bad whole number '" + token.text + "'");
    return number;
  }

  bool Flag(const Token& token) const { return Integer(token, 0, 1) == 1; }

  std::uint32_t Colour(std::string_view text) const {
    if (text.empty() || text.size() > 8) Fail("a bad colour");
    std::uint32_t colour = 0;
    for (const char c : text) {
      const int digit = HexDigit(c);
      if (digit < 0) Fail("a bad colour");
      colour = colour * 16 + static_cast<std::uint32_t>(digit);
    }
    return colour;
  }

  const std::string& Text(const Token& token) const {
    if (!token.quoted) Fail("a text without quotes");
    return token.text;
  }

  Value ValueOf(const Token& token) const {
    if (token.quoted) return Value::Text(token.text);
    if (token.text == "TRUE") return Value::Boolean(true);
    if (token.text == "FALSE") return Value::Boolean(false);
    if (token.text == "empty") return Value();
    if (!token.text.empty() && token.text[0] == '#') {
      const auto code = ErrorFromText(token.text);
      if (!code) Fail("an unknown error value " + token.text);
      return Value::Error(*code);
    }
    double number = 0;
    const char* end = token.text.data() + token.text.size();
    const auto [ptr, ec] = std::from_chars(token.text.data(), end, number);
    if (ec != std::errc() || ptr != end || token.text.empty()) Fail("a bad value " + token.text);
    return Value::Number(number);
  }

  CellAddress Cell(std::string_view text) const {
    const auto area = ParseAreaText(text);
    if (!area || area->firstRow != area->lastRow || area->firstCol != area->lastCol ||
        !InSheet(area->firstRow, area->firstCol))
      Fail("a bad cell '" + std::string(text) + "'");
    return {area->firstRow, area->firstCol};
  }

  Area Range(std::string_view text) const {
    const auto area = ParseAreaText(text);
    if (!area || !InSheet(area->firstRow, area->firstCol) ||
        !InSheet(area->lastRow, area->lastCol) || area->firstRow > area->lastRow ||
        area->firstCol > area->lastCol)
      Fail("a bad range '" + std::string(text) + "'");
    return *area;
  }

  int Column(std::string_view letters) const {
    if (letters.empty() || letters.size() > 2 ||
        !std::all_of(letters.begin(), letters.end(), [](char c) { return c >= 'A' && c <= 'Z'; }))
      Fail("a bad column '" + std::string(letters) + "'");
    return Cell(std::string(letters) + "1").col;
  }

  const std::string& Rest() const {
    if (!line_.rest || line_.rest->empty()) Fail("a formula is missing");
    if (line_.rest->size() > kMaxFormula) Fail("a formula too long");
    return *line_.rest;
  }

  void NoRest() const {
    if (line_.rest) Fail("a formula where none belongs");
  }

 private:
  static bool InSheet(int row, int col) {
    return row >= 1 && row <= kMaxRow && col >= 1 && col <= kMaxCol;
  }

  const Line& line_;
};

constexpr double kHuge = 1e300;
constexpr int kMaxCount = 32767;

HAlign HAlignOf(const Fields& fields, const std::string& text) {
  if (text == "general") return HAlign::General;
  if (text == "left") return HAlign::Left;
  if (text == "center") return HAlign::Center;
  if (text == "right") return HAlign::Right;
  fields.Fail("a bad alignment " + text);
}

VAlign VAlignOf(const Fields& fields, const std::string& text) {
  if (text == "bottom") return VAlign::Bottom;
  if (text == "center") return VAlign::Center;
  if (text == "top") return VAlign::Top;
  fields.Fail("a bad alignment " + text);
}

Border BorderOf(const Fields& fields, const std::string& text) {
  const std::size_t slash = text.find('/');
  if (slash == std::string::npos) fields.Fail("a bad border " + text);
  Border border;
  border.style = fields.Integer(Token{"", text.substr(0, slash), false}, 0, 6);
  border.color = fields.Colour(std::string_view(text).substr(slash + 1));
  return border;
}

CellStyle StyleOf(const Fields& fields) {
  CellStyle style;
  fields.ForEachKey(2, [&](const Token& t) {
    if (t.key == "format")
      style.numberFormat = fields.Text(t);
    else if (t.key == "font")
      style.font.name = fields.Text(t);
    else if (t.key == "size")
      style.font.size = fields.Number(t, 0, 10000);
    else if (t.key == "bold")
      style.font.bold = fields.Flag(t);
    else if (t.key == "italic")
      style.font.italic = fields.Flag(t);
    else if (t.key == "underline")
      style.font.underline = fields.Flag(t);
    else if (t.key == "color")
      style.font.color = fields.Colour(t.text);
    else if (t.key == "align")
      style.hAlign = HAlignOf(fields, t.text);
    else if (t.key == "valign")
      style.vAlign = VAlignOf(fields, t.text);
    else if (t.key == "wrap")
      style.wrap = fields.Flag(t);
    else if (t.key == "left")
      style.left = BorderOf(fields, t.text);
    else if (t.key == "right")
      style.right = BorderOf(fields, t.text);
    else if (t.key == "top")
      style.top = BorderOf(fields, t.text);
    else if (t.key == "bottom")
      style.bottom = BorderOf(fields, t.text);
    else if (t.key == "fill")
      style.fill = fields.Colour(t.text);
    else
      return false;
    return true;
  });
  return style;
}

void ReadPrint(const Fields& fields, PrintSetup& print) {
  fields.ForEachKey(1, [&](const Token& t) {
    if (t.key == "header")
      print.header = fields.Text(t);
    else if (t.key == "footer")
      print.footer = fields.Text(t);
    else if (t.key == "left")
      print.leftMargin = fields.Number(t, -kHuge, kHuge);
    else if (t.key == "right")
      print.rightMargin = fields.Number(t, -kHuge, kHuge);
    else if (t.key == "top")
      print.topMargin = fields.Number(t, -kHuge, kHuge);
    else if (t.key == "bottom")
      print.bottomMargin = fields.Number(t, -kHuge, kHuge);
    else if (t.key == "grid")
      print.gridLines = fields.Flag(t);
    else if (t.key == "headings")
      print.rowHeading = fields.Flag(t);
    else if (t.key == "hcenter")
      print.hCenter = fields.Flag(t);
    else if (t.key == "vcenter")
      print.vCenter = fields.Flag(t);
    else if (t.key == "nocolor")
      print.noColor = fields.Flag(t);
    else if (t.key == "lefttoright")
      print.leftToRight = fields.Flag(t);
    else if (t.key == "landscape")
      print.landscape = fields.Flag(t);
    else if (t.key == "scale")
      print.scale = fields.Number(t, -kHuge, kHuge);
    else if (t.key == "fit")
      print.fitToPages = fields.Flag(t);
    else if (t.key == "wide")
      print.pagesWide = fields.Integer(t, -kMaxCount, kMaxCount);
    else if (t.key == "tall")
      print.pagesTall = fields.Integer(t, -kMaxCount, kMaxCount);
    else if (t.key == "area")
      print.printArea = fields.Text(t);
    else
      return false;
    return true;
  });
}

void ReadDisplay(const Fields& fields, DisplaySwitches& display) {
  fields.ForEachKey(1, [&](const Token& t) {
    bool* target = t.key == "tabs"          ? &display.showTabs
                   : t.key == "rowheadings" ? &display.rowHeadings
                   : t.key == "colheadings" ? &display.colHeadings
                   : t.key == "grid"        ? &display.gridLines
                   : t.key == "celledit"    ? &display.allowInCellEditing
                   : t.key == "fill"        ? &display.allowFillRange
                   : t.key == "move"        ? &display.allowMoveRange
                   : t.key == "delete"      ? &display.allowDelete
                   : t.key == "resize"      ? &display.allowResize
                                            : nullptr;
    if (target) *target = fields.Flag(t);
    return target != nullptr;
  });
}

void ReadView(const Fields& fields, SheetRecord& sheet) {
  fields.ForEachKey(1, [&](const Token& t) {
    if (t.key == "selection")
      sheet.selection = fields.Range(t.text);
    else if (t.key == "active")
      sheet.active = fields.Cell(t.text);
    else if (t.key == "top")
      sheet.topRow = fields.Integer(t, 1, kMaxRow);
    else if (t.key == "left")
      sheet.leftCol = fields.Integer(t, 1, kMaxCol);
    else if (t.key == "maxrow")
      sheet.maxRow = fields.Integer(t, 1, kMaxRow);
    else if (t.key == "selected")
      sheet.selected = fields.Flag(t);
    else
      return false;
    return true;
  });
}

SheetObject ObjectOf(const Fields& fields) {
  SheetObject object;
  fields.ForEachKey(1, [&](const Token& t) {
    if (t.key == "id")
      object.id = fields.Integer(t, -2147483647, 2147483647);
    else if (t.key == "type")
      object.type = fields.Integer(t, -kMaxCount, kMaxCount);
    else if (t.key == "name")
      object.name = fields.Text(t);
    else if (t.key == "x1")
      object.x1 = fields.Number(t, -kHuge, kHuge);
    else if (t.key == "y1")
      object.y1 = fields.Number(t, -kHuge, kHuge);
    else if (t.key == "x2")
      object.x2 = fields.Number(t, -kHuge, kHuge);
    else if (t.key == "y2")
      object.y2 = fields.Number(t, -kHuge, kHuge);
    else if (t.key == "cell")
      object.linkedCell = fields.Text(t);
    else if (t.key == "value")
      object.value = fields.Number(t, -kHuge, kHuge);
    else if (t.key == "selected")
      object.selected = fields.Flag(t);
    else if (t.key == "data")
      object.data = fields.Text(t);
    else
      return false;
    return true;
  });
  return object;
}

void ReadHiddenRows(const Fields& fields, SheetRecord& sheet) {
  for (std::size_t i = 1; i < fields.Count(); ++i) {
    const Token& token = fields.At(i);
    const std::size_t dash = token.text.find('-');
    const int first =
        fields.Integer(Token{"", token.text.substr(0, dash), token.quoted}, 1, kMaxRow);
    const int last =
        dash == std::string::npos
            ? first
            : fields.Integer(Token{"", token.text.substr(dash + 1), false}, 1, kMaxRow);
    if (!token.key.empty() || last < first ||
        (!sheet.hiddenRows.empty() && first <= sheet.hiddenRows.back()))
      fields.Fail("hidden rows out of order");
    for (int row = first; row <= last; ++row) sheet.hiddenRows.push_back(row);
  }
}

// The words that open a line other than a cell's; a cell line opens with its address.
bool IsKeyword(std::string_view word) {
  static constexpr std::string_view kKeywords[] = {
      "book",          "title",  "calc",        "active-sheet", "name",    "style", "sheet",
      "default-width", "column", "hidden-rows", "print",        "display", "view",  "object"};
  return std::find(std::begin(kKeywords), std::end(kKeywords), word) != std::end(kKeywords);
}

bool IsStyleToken(const Token& token) {
  return !token.quoted && token.key.empty() && token.text.size() > 1 && token.text[0] == 's' &&
         std::all_of(token.text.begin() + 1, token.text.end(),
                     [](char c) { return c >= '0' && c <= '9'; });
}

// Builds the document line by line: book lines first, then each sheet with its own lines.
class DocumentBuilder {
 public:
  void Header(std::string_view text) {
    const std::string expected = std::string(kNativeMagic) + " " + std::to_string(kNativeVersion);
    if (text.substr(0, kNativeMagic.size() + 1) != std::string(kNativeMagic) + " ")
      Corrupt(1, "not a workbook file");
    if (text != expected) Corrupt(1, "a version this program does not read");
  }

  void Add(const Line& line) {
    if (line.tokens.empty()) Corrupt(line.number, "an empty line");
    const Fields fields(line);
    const Token& head = line.tokens[0];
    if (!head.key.empty() || head.quoted) fields.Fail("a line without a keyword");
    const std::string& keyword = head.text;
    if (IsKeyword(keyword) && keyword != "name") fields.NoRest();

    if (keyword == "sheet") return AddSheet(fields);
    if (sheet_ == nullptr) return AddBookLine(keyword, fields);
    if (keyword == "default-width") {
      ExpectCount(fields, 2);
      sheet_->defaultWidth = fields.Number(fields.At(1), 0, 1000);
    } else if (keyword == "column") {
      ExpectCount(fields, 3);
      const int col = fields.Column(fields.At(1).text);
      if (!sheet_->columnWidths.empty() && col <= sheet_->columnWidths.rbegin()->first)
        fields.Fail("columns out of order");
      sheet_->columnWidths[col] = fields.Number(fields.At(2), 0, 1000);
    } else if (keyword == "hidden-rows") {
      ReadHiddenRows(fields, *sheet_);
    } else if (keyword == "print") {
      ReadPrint(fields, sheet_->print);
    } else if (keyword == "display") {
      ReadDisplay(fields, sheet_->display);
    } else if (keyword == "view") {
      ReadView(fields, *sheet_);
    } else if (keyword == "object") {
      if (sheet_->objects.size() >= kMaxNativeObjects) fields.Fail("too many objects");
      sheet_->objects.push_back(ObjectOf(fields));
    } else {
      AddCell(fields);
    }
  }

  WorkbookDocument Finish(std::size_t lineNumber) {
    if (document_.sheets.empty()) Corrupt(lineNumber, "a workbook without sheets");
    if (document_.activeSheet > static_cast<int>(document_.sheets.size()))
      Corrupt(lineNumber, "the active sheet does not exist");
    return std::move(document_);
  }

 private:
  static void ExpectCount(const Fields& fields, std::size_t count) {
    if (fields.Count() != count) fields.Fail("a wrong number of fields");
    for (std::size_t i = 1; i < count; ++i)
      if (!fields.At(i).key.empty()) fields.Fail("a field with a key where none belongs");
  }

  void AddBookLine(const std::string& keyword, const Fields& fields) {
    if (keyword == "book") {
      ExpectCount(fields, 2);
      document_.bookName = fields.Text(fields.At(1));
    } else if (keyword == "title") {
      ExpectCount(fields, 2);
      document_.title = fields.Text(fields.At(1));
    } else if (keyword == "calc") {
      fields.ForEachKey(1, [&](const Token& t) {
        if (t.key == "auto")
          document_.autoRecalc = fields.Flag(t);
        else if (t.key == "iteration")
          document_.iterationOn = fields.Flag(t);
        else if (t.key == "count")
          document_.maxIterations = fields.Integer(t, 0, kMaxCount);
        else if (t.key == "change")
          document_.maxChange = fields.Number(t, 0, kHuge);
        else
          return false;
        return true;
      });
    } else if (keyword == "active-sheet") {
      ExpectCount(fields, 2);
      document_.activeSheet = fields.Integer(fields.At(1), 1, kMaxNativeSheets);
    } else if (keyword == "name") {
      ExpectCount(fields, 2);
      if (document_.names.size() >= kMaxNativeNames) fields.Fail("too many names");
      const std::string& name = fields.Text(fields.At(1));
      if (name.empty()) fields.Fail("an empty name");
      if (!nameKeys_.insert(UpperAscii(name)).second) fields.Fail("the name " + name + " twice");
      document_.names.push_back({name, fields.Rest()});
    } else if (keyword == "style") {
      if (document_.styles.size() >= kMaxNativeStyles) fields.Fail("too many styles");
      const int expected = static_cast<int>(document_.styles.size()) + 1;
      if (fields.Integer(fields.At(1), expected, expected) != expected)
        fields.Fail("styles out of order");
      document_.styles.push_back(StyleOf(fields));
    } else {
      fields.Fail("an unknown line '" + keyword + "'");
    }
  }

  void AddSheet(const Fields& fields) {
    ExpectCount(fields, 2);
    if (document_.sheets.size() >= kMaxNativeSheets) fields.Fail("too many sheets");
    const std::string& name = fields.Text(fields.At(1));
    if (name.empty()) fields.Fail("a sheet without a name");
    for (const SheetRecord& other : document_.sheets)
      if (EqualNoCase(other.name, name)) fields.Fail("the sheet " + name + " twice");
    document_.sheets.emplace_back();
    sheet_ = &document_.sheets.back();
    sheet_->name = name;
  }

  // "B17 s3 = 90", "D15 s2 60 := formula", "B18 s3".
  void AddCell(const Fields& fields) {
    CellRecord cell;
    cell.address = fields.Cell(fields.At(0).text);
    if (!sheet_->cells.empty()) {
      const CellAddress& last = sheet_->cells.back().address;
      if (cell.address.row < last.row ||
          (cell.address.row == last.row && cell.address.col <= last.col))
        fields.Fail("cells out of order");
    }
    std::size_t next = 1;
    if (next < fields.Count() && IsStyleToken(fields.At(next))) {
      const int style = fields.Integer(Token{"", fields.At(next).text.substr(1), false}, 1,
                                       static_cast<int>(document_.styles.size()));
      cell.style = static_cast<std::uint32_t>(style);
      ++next;
    }
    const std::size_t left = fields.Count() - next;
    for (std::size_t i = next; i < fields.Count(); ++i)
      if (!fields.At(i).key.empty()) fields.Fail("a bad cell");
    if (fields.Count() > next && fields.At(next).text == "=" && !fields.At(next).quoted) {
      if (left != 2) fields.Fail("a bad constant");
      fields.NoRest();
      cell.value = fields.ValueOf(fields.At(next + 1));
      if (cell.value.IsEmpty()) fields.Fail("an empty constant");
    } else if (left == 1) {
      cell.value = fields.ValueOf(fields.At(next));
      cell.formula = fields.Rest();
    } else if (left == 0) {
      fields.NoRest();
      if (cell.style == 0) fields.Fail("a cell without content");
    } else {
      fields.Fail("a bad cell");
    }
    sheet_->cells.push_back(std::move(cell));
  }

  WorkbookDocument document_;
  SheetRecord* sheet_ = nullptr;
  std::unordered_set<std::string> nameKeys_;  // upper-cased, as the book matches names
};

}  // namespace

bool LooksNative(std::string_view head) {
  return head.size() > kNativeMagic.size() && head.substr(0, kNativeMagic.size()) == kNativeMagic &&
         head[kNativeMagic.size()] == ' ';
}

WorkbookDocument ParseNative(std::istream& in) {
  std::string content;
  char buffer[1 << 16];
  while (in.read(buffer, sizeof buffer) || in.gcount() > 0) {
    content.append(buffer, static_cast<std::size_t>(in.gcount()));
    if (content.size() > kMaxNativeFile) Corrupt(0, "the file is too large");
  }

  DocumentBuilder builder;
  std::size_t lineNumber = 0;
  std::size_t position = 0;
  while (position < content.size()) {
    const std::size_t newline = content.find('\n', position);
    if (newline == std::string::npos) Corrupt(lineNumber + 1, "the file ends inside a line");
    std::string_view text(content.data() + position, newline - position);
    position = newline + 1;
    ++lineNumber;
    if (text.size() > kMaxNativeLine) Corrupt(lineNumber, "a line too long");
    if (!text.empty() && text.back() == '\r') text.remove_suffix(1);
    if (lineNumber == 1) {
      builder.Header(text);
    } else if (text == "end") {
      if (position != content.size()) Corrupt(lineNumber + 1, "text after the end");
      return builder.Finish(lineNumber);
    } else {
      builder.Add(LineReader(lineNumber).Split(text));
    }
  }
  Corrupt(lineNumber, "the file ends before its end line");
}

void ReadNative(std::istream& in, Workbook& book) {
  ApplyReadDocument(ParseNative(in), book);
}

}  // namespace gustline::wb
