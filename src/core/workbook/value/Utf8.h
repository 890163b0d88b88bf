#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace gustline::wb {

// The length of the UTF-8 sequence at `at`, its code point in `codePoint`; 0 when the bytes
// there are no UTF-8 (a stray or missing continuation, an overlong form, a surrogate, a code
// point beyond U+10FFFF).
std::size_t Utf8Sequence(std::string_view text, std::size_t at, char32_t& codePoint);

bool IsUtf8(std::string_view text);

void AppendUtf8(std::string& out, char32_t codePoint);

// A text of a file as a message quotes it: control characters, and bytes that are no UTF-8,
// written as \t, \n, \r or \xNN, so that a damaged file cannot send a terminal its escape
// sequences through a message.
std::string PrintableText(std::string_view text);

}  // namespace gustline::wb
