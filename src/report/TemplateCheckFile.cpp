#include "report/TemplateCheckFile.h"

#include <algorithm>
#include <cctype>
#include <cmath>
#include <fstream>
#include <iterator>
#include <utility>

#include "core/workbook/address/CellAddress.h"
#include "core/workbook/value/Value.h"

namespace gustline::report {
namespace {

// The words of a line up to a comment. Blanks inside double quotes, or inside single quotes
// that open a word (a sheet name), do not split; a doubled quote stands for itself.
std::vector<std::string> SplitWords(std::string_view line, const std::string& path, int lineNo) {
  std::vector<std::string> words;
  std::size_t i = 0;
  while (true) {
    while (i < line.size() && (line[i] == ' ' || line[i] == '\t' || line[i] == '\r')) ++i;
    if (i == line.size() || line[i] == '#') return words;
    const std::size_t start = i;
    while (i < line.size() && line[i] != ' ' && line[i] != '\t' && line[i] != '\r') {
      const char quote = line[i];
      if (quote != '"' && !(quote == '\'' && i == start)) {
        ++i;
        continue;
      }
      for (++i;; ++i) {
        if (i == line.size()) throw CheckFileError(path, lineNo, "a quote is not closed");
        if (line[i] != quote) continue;
        if (i + 1 < line.size() && line[i + 1] == quote) {
          ++i;
          continue;
        }
        ++i;
        break;
      }
    }
    words.emplace_back(line.substr(start, i - start));
  }
}

// A word wholly in double quotes, without them; nullopt for any other word.
std::optional<std::string> QuotedText(std::string_view word) {
  if (word.size() < 2 || word.front() != '"' || word.back() != '"') return std::nullopt;
  std::string text;
  for (std::size_t i = 1; i + 1 < word.size(); ++i) {
    if (word[i] == '"') {
      if (word[i + 1] != '"' || i + 2 == word.size()) return std::nullopt;
      ++i;
    }
    text += word[i];
  }
  return text;
}

std::optional<int> WholeNumber(std::string_view text) {
  const auto number = wb::ReadNumber(text);
  if (!number || *number != std::trunc(*number) || std::abs(*number) > wb::kMaxRow)
    return std::nullopt;
  return static_cast<int>(*number);
}

// Column letters ("J") as a number; 0 when they are none.
int ColumnOf(std::string_view letters) {
  if (letters.empty() || letters.size() > 2) return 0;
  for (const char c : letters)
    if (!std::isalpha(static_cast<unsigned char>(c))) return 0;
  const auto area = wb::ParseAreaText(std::string(letters) + "1");
  return area ? area->firstCol : 0;
}

// "'Page 3'!J@B"Leeward wall"+1": the sheet, the column read, the label's column, the label,
// the rows below it.
CheckPlace ParseLabelledPlace(const std::string& word, std::size_t at, const std::string& path,
                              int lineNo) {
  auto fail = [&](const std::string& reason) -> CheckFileError {
    return CheckFileError(path, lineNo, reason + " in " + word);
  };
  CheckPlace place;
  place.written = word;
  const std::string_view left = std::string_view(word).substr(0, at);
  const std::size_t bang = left.rfind('!');
  if (bang == std::string_view::npos || bang == 0) throw fail("no sheet before the column");
  std::string_view sheet = left.substr(0, bang);
  if (sheet.size() >= 2 && sheet.front() == '\'' && sheet.back() == '\'')
    sheet = sheet.substr(1, sheet.size() - 2);
  place.sheet = sheet;
  place.column = ColumnOf(left.substr(bang + 1));
  if (place.column == 0) throw fail("no column before @");

  const std::string_view right = std::string_view(word).substr(at + 1);
  const std::size_t open = right.find('"');
  const std::size_t close = right.rfind('"');
  if (open == std::string_view::npos || close == open) throw fail("no quoted label after @");
  place.labelColumn = ColumnOf(right.substr(0, open));
  if (place.labelColumn == 0) throw fail("no label column after @");
  const auto label = QuotedText(right.substr(open, close - open + 1));
  if (!label) throw fail("no quoted label after @");
  place.label = *label;
  std::string_view rest = right.substr(close + 1);
  if (!rest.empty() && rest.front() == '[') {
    const std::size_t end = rest.find(']');
    const auto occurrence =
        WholeNumber(rest.substr(1, end == std::string_view::npos ? 0 : end - 1));
    if (!occurrence || *occurrence < 1) throw fail("no row count of 1 or more in [ ]");
    place.occurrence = *occurrence;
    rest = rest.substr(end + 1);
  }
  if (!rest.empty()) {
    const auto rows = WholeNumber(rest);
    if ((rest.front() != '+' && rest.front() != '-') || !rows)
      throw fail("no whole number of rows after the label");
    place.rowOffset = *rows;
  }
  return place;
}

CheckPlace ParsePlace(const std::string& word, const std::string& path, int lineNo) {
  bool quoted = false;
  for (std::size_t i = 0; i < word.size(); ++i) {
    if (word[i] == '"') quoted = !quoted;
    if (word[i] == '@' && !quoted) return ParseLabelledPlace(word, i, path, lineNo);
  }
  CheckPlace place;
  place.written = word;
  place.reference = word;
  return place;
}

double ParseTolerance(const std::string& word, const std::string& path, int lineNo) {
  const auto tolerance = wb::ReadNumber(word);
  if (!tolerance || *tolerance < 0)
    throw CheckFileError(path, lineNo, "a tolerance is a number not below 0, not " + word);
  return *tolerance;
}

// The lines of the file, read into cases.
class CheckParser {
 public:
  explicit CheckParser(const std::string& path) { file_.path = path; }

  void Line(std::string_view line) {
    ++lineNo_;
    const std::vector<std::string> words = SplitWords(line, file_.path, lineNo_);
    if (words.empty()) return;
    const std::string& directive = words[0];
    if (directive == "case") return Case(words);
    if (directive == "tolerance") {
      Count(words, 2, "tolerance TOLERANCE");
      tolerance_ = ParseTolerance(words[1], file_.path, lineNo_);
      return;
    }
    if (directive == "set") {
      Count(words, 3, "set NAME VALUE");
      const auto text = QuotedText(words[2]);
      return Step(SetInput{words[1], text.value_or(words[2]), text.has_value()});
    }
    if (directive == "template") {
      Count(words, 2, "template NAME");
      return Step(ExpectTemplate{words[1]});
    }
    if (directive == "expect") return Expect(words);
    Fail("unknown directive " + directive);
  }

  CheckFile Take() { return std::move(file_); }

 private:
  [[noreturn]] void Fail(const std::string& reason) const {
    throw CheckFileError(file_.path, lineNo_, reason);
  }

  void Count(const std::vector<std::string>& words, std::size_t count, const char* form) const {
    if (words.size() != count) Fail(std::string("expected ") + form);
  }

  void Case(const std::vector<std::string>& words) {
    if (words.size() < 2) Fail("a case needs a name");
    std::string name = words[1];
    for (std::size_t i = 2; i < words.size(); ++i) name += " " + words[i];
    file_.cases.push_back(CheckCase{std::move(name), {}});
  }

  void Step(CheckStep::Action action) {
    if (file_.cases.empty()) Fail("a check stands before the first case");
    file_.cases.back().steps.push_back(CheckStep{lineNo_, std::move(action)});
  }

  void Expect(const std::vector<std::string>& words) {
    if (words.size() != 3 && words.size() != 4) Fail("expected expect WHERE VALUE [TOLERANCE]");
    CheckValue value;
    value.tolerance = tolerance_;
    if (const auto text = QuotedText(words[2]))
      value.text = *text;
    else if (words[2] == "hidden" || words[2] == "shown")
      value.hidden = words[2] == "hidden";
    else if (const auto number = wb::ReadNumber(words[2]))
      value.number = number;
    else
      Fail("a value is a number, a quoted text, hidden or shown, not " + words[2]);
    if (words.size() == 4) {
      if (!value.number) Fail("only a number takes a tolerance");
      value.tolerance = ParseTolerance(words[3], file_.path, lineNo_);
    }
    Step(ExpectValue{ParsePlace(words[1], file_.path, lineNo_), std::move(value)});
  }

  CheckFile file_;
  int lineNo_ = 0;
  double tolerance_ = 0;
};

}  // namespace

CheckFileError::CheckFileError(const std::string& path, int line, const std::string& reason)
    : std::runtime_error(path + (line > 0 ? ":" + std::to_string(line) : "") + ": " + reason),
      path(path),
      line(line) {}

CheckFile ParseCheckFile(std::string_view text, const std::string& path) {
  CheckParser parser(path);
  std::size_t start = 0;
  while (start <= text.size()) {
    const std::size_t end = std::min(text.find('\n', start), text.size());
    parser.Line(text.substr(start, end - start));
    start = end + 1;
  }
  return parser.Take();
}

CheckFile ReadCheckFile(const std::string& path) {
  std::ifstream in(path, std::ios::binary);
  if (!in) throw CheckFileError(path, 0, "the file cannot be read");
  const std::string text{std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
  return ParseCheckFile(text, path);
}

}  // namespace gustline::report
