#include "core/workbook/value/CodePage1252.h"

#include <array>
#include <cstdint>

#include "core/workbook/value/Utf8.h"

namespace gustline::wb {
namespace {

// The code points of bytes 0x80 to 0x9F; 0 where the code page leaves the byte undefined.
constexpr std::array<std::uint16_t, 32> kHighControls = {
    0x20AC, 0,      0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0,      0x017D, 0,      0,      0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0,      0x017E, 0x0178};

constexpr char32_t kReplacement = 0xFFFD;

char ByteOf(char32_t codePoint) {
  if (codePoint < 0x80 || (codePoint >= 0xA0 && codePoint <= 0xFF))
    return static_cast<char>(codePoint);
  for (std::size_t i = 0; i < kHighControls.size(); ++i)
    if (kHighControls[i] != 0 && kHighControls[i] == codePoint) return static_cast<char>(0x80 + i);
  return '?';
}

char32_t CodePointOf(unsigned char byte) {
  if (byte < 0x80 || byte >= 0xA0) return byte;
  const char32_t mapped = kHighControls[byte - 0x80];
  return mapped != 0 ? mapped : kReplacement;
}

}  // namespace

std::string ToCodePage1252(std::string_view utf8) {
  std::string out;
  out.reserve(utf8.size());
  char32_t codePoint = 0;
  for (std::size_t i = 0; i < utf8.size();) {
    const std::size_t length = Utf8Sequence(utf8, i, codePoint);
    out.push_back(length == 0 ? '?' : ByteOf(codePoint));
    i += length == 0 ? 1 : length;
  }
  return out;
}

std::string FromCodePage1252(std::string_view bytes) {
  std::string out;
  out.reserve(bytes.size() * 2);
  for (const char c : bytes) AppendUtf8(out, CodePointOf(static_cast<unsigned char>(c)));
  return out;
}

}  // namespace gustline::wb
