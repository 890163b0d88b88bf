#include "SourceText.h"

#include <charconv>
#include <fstream>

namespace gustline::books {
namespace {

std::string_view Trim(std::string_view text) {
  const auto first = text.find_first_not_of(" \t\r");
  if (first == std::string_view::npos) return {};
  const auto last = text.find_last_not_of(" \t\r");
  return text.substr(first, last - first + 1);
}

// The position after the closing quote of the string that opens at `open`, or npos.
std::size_t SkipQuoted(std::string_view text, std::size_t open) {
  for (std::size_t i = open + 1; i < text.size(); ++i) {
    if (text[i] != '"') continue;
    if (i + 1 < text.size() && text[i + 1] == '"') {
      ++i;
      continue;
    }
    return i + 1;
  }
  return std::string_view::npos;
}

Field MakeField(std::string_view raw) {
  const std::string_view text = Trim(raw);
  if (!text.empty() && text.front() == '"' && SkipQuoted(text, 0) == text.size())
    return {Unquote(text), true};
  return {std::string(text), false};
}

}  // namespace

std::vector<SourceLine> ReadSourceLines(const std::filesystem::path& path) {
  std::ifstream in(path);
  if (!in) throw SourceError({path.string(), 0}, "cannot read the file");
  std::vector<SourceLine> lines;
  std::string raw;
  int number = 0;
  bool continuing = false;
  while (std::getline(in, raw)) {
    ++number;
    std::string_view text = Trim(raw);
    if (!continuing && (text.empty() || text.front() == '#')) continue;
    const bool continues = !text.empty() && text.back() == '\\';
    if (continues) text = Trim(text.substr(0, text.size() - 1));
    if (continuing)
      lines.back().text += " " + std::string(text);
    else
      lines.push_back({{path.string(), number}, std::string(text)});
    continuing = continues;
  }
  if (continuing) throw SourceError(lines.back().where, "the file ends inside a continued line");
  return lines;
}

std::vector<Field> SplitRow(std::string_view text, const SourceLocation& where) {
  text = Trim(text);
  if (text.empty() || text.front() != '|') throw SourceError(where, "a row starts with '|'");
  text.remove_prefix(1);
  std::vector<Field> fields;
  std::size_t start = 0;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] == '"') {
      const auto end = SkipQuoted(text, i);
      if (end == std::string_view::npos) throw SourceError(where, "a quote is not closed");
      i = end - 1;
    } else if (text[i] == '|') {
      fields.push_back(MakeField(text.substr(start, i - start)));
      start = i + 1;
    }
  }
  if (start < text.size() && !Trim(text.substr(start)).empty())
    fields.push_back(MakeField(text.substr(start)));
  return fields;
}

std::vector<std::string> SplitWords(std::string_view text, const SourceLocation& where) {
  std::vector<std::string> words;
  std::string word;
  bool inWord = false;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const char c = text[i];
    if (c == ' ' || c == '\t') {
      if (inWord) words.push_back(std::move(word));
      word.clear();
      inWord = false;
      continue;
    }
    inWord = true;
    if (c == '"') {
      const auto end = SkipQuoted(text, i);
      if (end == std::string_view::npos) throw SourceError(where, "a quote is not closed");
      word += text.substr(i, end - i);
      i = end - 1;
    } else {
      word += c;
    }
  }
  if (inWord) words.push_back(std::move(word));
  return words;
}

std::string Unquote(std::string_view word) {
  if (word.size() < 2 || word.front() != '"' || word.back() != '"') return std::string(word);
  std::string text;
  for (std::size_t i = 1; i + 1 < word.size(); ++i) {
    text += word[i];
    if (word[i] == '"' && word[i + 1] == '"') ++i;
  }
  return text;
}

std::optional<double> ReadNumber(std::string_view text) {
  double number = 0;
  const char* end = text.data() + text.size();
  const auto [ptr, ec] = std::from_chars(text.data(), end, number);
  if (text.empty() || ec != std::errc() || ptr != end) return std::nullopt;
  return number;
}

std::string Substitute(std::string_view text, const std::map<std::string, std::string>& params,
                       const SourceLocation& where) {
  std::string out;
  std::size_t pos = 0;
  while (pos < text.size()) {
    const auto open = text.find('{', pos);
    if (open == std::string_view::npos) break;
    const auto close = text.find('}', open);
    if (close == std::string_view::npos) throw SourceError(where, "'{' without '}'");
    const std::string name(text.substr(open + 1, close - open - 1));
    const auto found = params.find(name);
    if (found == params.end()) throw SourceError(where, "no parameter '" + name + "'");
    out += text.substr(pos, open - pos);
    out += found->second;
    pos = close + 1;
  }
  out += text.substr(pos);
  return out;
}

}  // namespace gustline::books
