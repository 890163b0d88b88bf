#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace gustline::wb {

// The tokens of a formula text. Words cover names, functions, cell references and
// unquoted sheet names; the parser tells them apart by what follows.
struct FormulaToken {
  enum class Kind {
    Number,
    String,   // text: the literal with "" undoubled
    Error,    // text: the error literal as written
    Word,     // text: the word
    Quoted,   // text: a quoted sheet name with '' undoubled
    Bracket,  // text: the book name between [ and ]
    Bang,
    Colon,
    Comma,
    LParen,
    RParen,
    Plus,
    Minus,
    Star,
    Slash,
    Caret,
    Ampersand,
    Percent,
    Eq,
    Ne,
    Lt,
    Gt,
    Le,
    Ge,
    End,
  };
  Kind kind;
  std::string text;
  double number = 0;
  std::size_t position = 0;  // offset of the token in the formula text
};

// Splits a formula text into tokens, ending with End. Throws FacilityError(kFormulaSyntax)
// on a character that starts no token, an open string or an open bracket.
std::vector<FormulaToken> TokenizeFormula(std::string_view text);

}  // namespace gustline::wb
