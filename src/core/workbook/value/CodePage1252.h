#pragma once

#include <string>
#include <string_view>

namespace gustline::wb {

// The engine's UTF-8 text in Windows code page 1252, the single-byte text of Excel 5.0
// files: Latin-1 and the typographic marks of 0x80 to 0x9F keep their glyph; any other
// character, and a byte that is no valid UTF-8, becomes '?'.
std::string ToCodePage1252(std::string_view utf8);

// A text in code page 1252, as projects of old keep it, in UTF-8; a byte that the code page
// leaves undefined becomes U+FFFD.
std::string FromCodePage1252(std::string_view bytes);

}  // namespace gustline::wb
