#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "core/workbook/address/CellAddress.h"
#include "core/workbook/io/RecordStream.h"

namespace gustline::wb {

// A link record of a stream: the book in brackets (empty when the text names none, which
// is the book itself), the sheet, and the names of that book that follow it.
struct StoredLink {
  std::string book;
  std::string sheet;
  std::vector<std::string> names;
};

// What the tokens of one formula are read against.
struct TokenContext {
  const std::vector<StoredLink>& links;    // those of the formula's own stream
  const std::vector<std::string>& names;   // the defined names, in the order of their records
  const std::vector<std::string>& sheets;  // in tab order
  std::string_view bookName;               // a link to a book of this name is one to itself
  CellAddress host;                        // where the formula stands; A1 for a name
};

// The text of a formula's tokens without "=", with its sheets and names spelt as our parser
// binds them; `usedNames` receives the names it calls on, as written. Raises with the
// record's place on a token it does not know, a link or sheet out of range, or tokens that
// do not make one value.
std::string TokenFormulaText(std::string_view tokens, const TokenContext& context,
                             const Record& record, std::vector<std::string>& usedNames);

}  // namespace gustline::wb
