#include "core/workbook/formula/FormulaLexer.h"

#include <cmath>
#include <cstdlib>

#include "core/workbook/value/FacilityError.h"
#include "core/workbook/value/TextCompare.h"

namespace gustline::wb {
namespace {

[[noreturn]] void SyntaxError(std::string_view what, std::size_t position) {
  throw FacilityError(errc::kFormulaSyntax,
                      std::string(what) + " at position " + std::to_string(position + 1));
}

bool IsDigit(char c) {
  return c >= '0' && c <= '9';
}

bool IsLetter(char c) {
  return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
}

bool IsWordStart(char c) {
  return IsLetter(c) || c == '_' || c == '\\' || c == '$';
}

bool IsWordChar(char c) {
  return IsWordStart(c) || IsDigit(c) || c == '.' || c == '?';
}

// The length of a number literal at the start of the text: digits, a fraction, an exponent.
std::size_t NumberLength(std::string_view text) {
  std::size_t i = 0;
  while (i < text.size() && IsDigit(text[i])) ++i;
  if (i < text.size() && text[i] == '.') {
    ++i;
    while (i < text.size() && IsDigit(text[i])) ++i;
  }
  if (i < text.size() && (text[i] == 'E' || text[i] == 'e')) {
    std::size_t j = i + 1;
    if (j < text.size() && (text[j] == '+' || text[j] == '-')) ++j;
    if (j < text.size() && IsDigit(text[j])) {
      while (j < text.size() && IsDigit(text[j])) ++j;
      i = j;
    }
  }
  return i;
}

// Reads a literal delimited by `quote`, with the quote doubled inside; returns its end.
std::size_t ReadQuoted(std::string_view text, std::size_t start, char quote, std::string& out) {
  std::size_t i = start + 1;
  for (;;) {
    if (i >= text.size()) SyntaxError("Missing closing quote", start);
    if (text[i] == quote) {
      if (i + 1 < text.size() && text[i + 1] == quote) {
        out += quote;
        i += 2;
        continue;
      }
      return i + 1;
    }
    out += text[i++];
  }
}

// Canonical spellings; a literal is read without regard to case.
constexpr std::string_view kErrorLiterals[] = {"#NULL!", "#DIV/0!", "#VALUE!", "#REF!",
                                               "#NAME?", "#NUM!",   "#N/A"};

// The operator at the position, which it steps over.
FormulaToken::Kind OperatorKind(std::string_view text, std::size_t& i) {
  using Kind = FormulaToken::Kind;
  const char c = text[i++];
  const char next = i < text.size() ? text[i] : '\0';
  switch (c) {
    case '<':
      if (next == '=' || next == '>') ++i;
      return next == '=' ? Kind::Le : (next == '>' ? Kind::Ne : Kind::Lt);
    case '>':
      if (next == '=') ++i;
      return next == '=' ? Kind::Ge : Kind::Gt;
    case '!':
      return Kind::Bang;
    case ':':
      return Kind::Colon;
    case ',':
      return Kind::Comma;
    case '(':
      return Kind::LParen;
    case ')':
      return Kind::RParen;
    case '+':
      return Kind::Plus;
    case '-':
      return Kind::Minus;
    case '*':
      return Kind::Star;
    case '/':
      return Kind::Slash;
    case '^':
      return Kind::Caret;
    case '&':
      return Kind::Ampersand;
    case '%':
      return Kind::Percent;
    case '=':
      return Kind::Eq;
    default:
      SyntaxError("Unexpected character", i - 1);
  }
}

}  // namespace

std::vector<FormulaToken> TokenizeFormula(std::string_view text) {
  using Kind = FormulaToken::Kind;
  std::vector<FormulaToken> tokens;
  tokens.reserve(text.size() / 2 + 2);
  std::size_t i = 0;
  while (i < text.size()) {
    const char c = text[i];
    if (c == ' ' || c == '\t' || c == '\r' || c == '\n') {
      ++i;
      continue;
    }
    FormulaToken token{Kind::End, {}, 0, i};
    if (IsDigit(c) || (c == '.' && i + 1 < text.size() && IsDigit(text[i + 1]))) {
      const std::size_t length = NumberLength(text.substr(i));
      const std::string literal(text.substr(i, length));
      token.kind = Kind::Number;
      token.number = std::strtod(literal.c_str(), nullptr);
      if (!std::isfinite(token.number)) SyntaxError("Number out of range", i);
      i += length;
    } else if (IsWordStart(c)) {
      std::size_t j = i + 1;
      while (j < text.size() && IsWordChar(text[j])) ++j;
      token.kind = Kind::Word;
      token.text = text.substr(i, j - i);
      i = j;
    } else if (c == '"') {
      token.kind = Kind::String;
      i = ReadQuoted(text, i, '"', token.text);
    } else if (c == '\'') {
      token.kind = Kind::Quoted;
      i = ReadQuoted(text, i, '\'', token.text);
    } else if (c == '[') {
      const std::size_t close = text.find(']', i);
      if (close == std::string_view::npos) SyntaxError("Missing ]", i);
      token.kind = Kind::Bracket;
      token.text = text.substr(i + 1, close - i - 1);
      i = close + 1;
    } else if (c == '#') {
      for (std::string_view literal : kErrorLiterals) {
        if (EqualNoCase(text.substr(i, literal.size()), literal)) token.text = literal;
      }
      if (token.text.empty()) SyntaxError("Unknown error value", i);
      token.kind = Kind::Error;
      i += token.text.size();
    } else {
      token.kind = OperatorKind(text, i);
    }
    tokens.push_back(std::move(token));
  }
  tokens.push_back(FormulaToken{Kind::End, {}, 0, text.size()});
  return tokens;
}

}  // namespace gustline::wb
