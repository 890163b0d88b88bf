#pragma once

#include <algorithm>
#include <string>
#include <string_view>

namespace gustline::wb {

// Names of books, sheets and defined names match without regard to case, in ASCII.
constexpr char UpperAscii(char c) {
  return (c >= 'a' && c <= 'z') ? static_cast<char>(c - 'a' + 'A') : c;
}

inline std::string UpperAscii(std::string_view text) {
  std::string upper(text);
  for (char& c : upper) c = UpperAscii(c);
  return upper;
}

constexpr bool EqualNoCase(std::string_view a, std::string_view b) {
  if (a.size() != b.size()) return false;
  for (std::size_t i = 0; i < a.size(); ++i)
    if (UpperAscii(a[i]) != UpperAscii(b[i])) return false;
  return true;
}

// Byte order of the upper-cased texts, a text before any longer one it begins.
constexpr bool LessNoCase(std::string_view a, std::string_view b) {
  const std::size_t common = std::min(a.size(), b.size());
  for (std::size_t i = 0; i < common; ++i) {
    const auto x = static_cast<unsigned char>(UpperAscii(a[i]));
    const auto y = static_cast<unsigned char>(UpperAscii(b[i]));
    if (x != y) return x < y;
  }
  return a.size() < b.size();
}

// The text without leading and trailing blanks (spaces and tabs).
inline std::string_view TrimBlanks(std::string_view text) {
  const auto first = text.find_first_not_of(" \t");
  if (first == std::string_view::npos) return {};
  const auto last = text.find_last_not_of(" \t");
  return text.substr(first, last - first + 1);
}

}  // namespace gustline::wb
