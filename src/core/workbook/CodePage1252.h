#pragma once

#include <string>
#include <string_view>

namespace gustline::wb {

// The engine's UTF-8 text in Windows code page 1252, the single-byte text of Excel 5.0
// files: Latin-1 and the typographic marks of 0x80 to 0x9F keep their glyph; any other
// character, and a byte that is no valid UTF-8, becomes '?'.
std::string ToCodePage1252(std::string_view utf8);

}  // namespace gustline::wb
