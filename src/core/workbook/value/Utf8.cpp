#include "core/workbook/value/Utf8.h"

namespace gustline::wb {
namespace {

bool IsControl(char32_t codePoint) {
  return codePoint < 0x20 || (codePoint >= 0x7F && codePoint <= 0x9F);
}

void AppendEscaped(std::string& out, std::string_view bytes) {
  static constexpr char kHex[] = "0123456789abcdef";
  for (const char c : bytes) {
    const auto byte = static_cast<unsigned char>(c);
    if (c == '\t') {
      out += "\\t";
    } else if (c == '\n') {
      out += "\\n";
    } else if (c == '\r') {
      out += "\\r";
    } else {
      out += "\\x";
      out += kHex[byte >> 4];
      out += kHex[byte & 0xF];
    }
  }
}

}  // namespace

std::size_t Utf8Sequence(std::string_view text, std::size_t at, char32_t& codePoint) {
  const auto lead = static_cast<unsigned char>(text[at]);
  if (lead < 0x80) {
    codePoint = lead;
    return 1;
  }
  const std::size_t length = (lead >> 5) == 0x6    ? 2
                             : (lead >> 4) == 0xE  ? 3
                             : (lead >> 3) == 0x1E ? 4
                                                   : 0;
  if (length == 0 || at + length > text.size()) return 0;
  char32_t value = lead & (0x7F >> length);
  for (std::size_t k = 1; k < length; ++k) {
    const auto next = static_cast<unsigned char>(text[at + k]);
    if ((next & 0xC0) != 0x80) return 0;
    value = (value << 6) | (next & 0x3F);
  }
  static constexpr char32_t kSmallest[] = {0, 0, 0x80, 0x800, 0x10000};
  if (value < kSmallest[length] || value > 0x10FFFF || (value >= 0xD800 && value <= 0xDFFF))
    return 0;
  codePoint = value;
  return length;
}

bool IsUtf8(std::string_view text) {
  char32_t codePoint = 0;
  for (std::size_t i = 0; i < text.size();) {
    const std::size_t length = Utf8Sequence(text, i, codePoint);
    if (length == 0) return false;
    i += length;
  }
  return true;
}

void AppendUtf8(std::string& out, char32_t codePoint) {
  if (codePoint < 0x80) {
    out += static_cast<char>(codePoint);
  } else if (codePoint < 0x800) {
    out += static_cast<char>(0xC0 | (codePoint >> 6));
    out += static_cast<char>(0x80 | (codePoint & 0x3F));
  } else if (codePoint < 0x10000) {
    out += static_cast<char>(0xE0 | (codePoint >> 12));
    out += static_cast<char>(0x80 | ((codePoint >> 6) & 0x3F));
    out += static_cast<char>(0x80 | (codePoint & 0x3F));
  } else {
    out += static_cast<char>(0xF0 | (codePoint >> 18));
    out += static_cast<char>(0x80 | ((codePoint >> 12) & 0x3F));
    out += static_cast<char>(0x80 | ((codePoint >> 6) & 0x3F));
    out += static_cast<char>(0x80 | (codePoint & 0x3F));
  }
}

std::string PrintableText(std::string_view text) {
  std::string out;
  out.reserve(text.size());
  char32_t codePoint = 0;
  for (std::size_t i = 0; i < text.size();) {
    const std::size_t length = Utf8Sequence(text, i, codePoint);
    const std::string_view piece = text.substr(i, length == 0 ? 1 : length);
    if (length == 0 || IsControl(codePoint))
      AppendEscaped(out, piece);
    else
      out += piece;
    i += piece.size();
  }
  return out;
}

}  // namespace gustline::wb
