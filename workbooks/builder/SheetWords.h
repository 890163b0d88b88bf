#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace gustline::books {

// Sheet names may hold blanks ("Page 1"), which split the words of a directive; these put
// the pieces back together. Both forms are read: Page 1!A1 and 'Page 1'!A1.

// Joins words[at] with the words after it up to the first one that holds '!', so that
// "Page 1!A1" is one word again. Nothing changes when a key (a word with '=') or the end
// comes first.
void JoinQualifiedWord(std::vector<std::string>& words, std::size_t at);

// Joins words[at] with as many words after it as give the longest name that isSheet takes.
void JoinSheetWord(std::vector<std::string>& words, std::size_t at,
                   const std::function<bool(std::string_view)>& isSheet);

// A sheet as written, without the single quotes of 'Page 1' ('' standing for a quote).
std::string SheetNameText(std::string_view text);

// The sheet as a formula writes it before its "!": Sheet3, 'Page 1'.
std::string QuotedSheetName(std::string_view sheet);

}  // namespace gustline::books
