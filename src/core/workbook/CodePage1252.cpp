#include "CodePage1252.h"

#include <array>
#include <cstdint>

namespace gustline::wb {
namespace {

// The code points of bytes 0x80 to 0x9F; 0 where the code page leaves the byte undefined.
constexpr std::array<std::uint16_t, 32> kHighControls = {
    0x20AC, 0,      0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0,      0x017D, 0,      0,      0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0,      0x017E, 0x0178};

char ByteOf(std::uint32_t codePoint) {
  if (codePoint < 0x80 || (codePoint >= 0xA0 && codePoint <= 0xFF))
    return static_cast<char>(codePoint);
  for (std::size_t i = 0; i < kHighControls.size(); ++i)
    if (kHighControls[i] != 0 && kHighControls[i] == codePoint) return static_cast<char>(0x80 + i);
  return '?';
}

}  // namespace

std::string ToCodePage1252(std::string_view utf8) {
  std::string out;
  out.reserve(utf8.size());
  std::size_t i = 0;
  while (i < utf8.size()) {
    const auto lead = static_cast<unsigned char>(utf8[i]);
    const std::size_t length = lead < 0x80           ? 1
                               : (lead >> 5) == 0x6  ? 2
                               : (lead >> 4) == 0xE  ? 3
                               : (lead >> 3) == 0x1E ? 4
                                                     : 0;
    if (length == 0 || i + length > utf8.size()) {
      out.push_back('?');
      ++i;
      continue;
    }
    std::uint32_t codePoint = length == 1 ? lead : lead & (0x7F >> length);
    bool valid = true;
    for (std::size_t k = 1; k < length; ++k) {
      const auto next = static_cast<unsigned char>(utf8[i + k]);
      valid = valid && (next & 0xC0) == 0x80;
      codePoint = (codePoint << 6) | (next & 0x3F);
    }
    out.push_back(valid ? ByteOf(codePoint) : '?');
    i += valid ? length : 1;
  }
  return out;
}

}  // namespace gustline::wb
