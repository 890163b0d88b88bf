#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "core/workbook/address/CellAddress.h"
#include "core/workbook/value/Value.h"

namespace gustline::wb {

class Workbook;

// Relative references are kept as offsets from the host cell, so one compiled formula serves
// every row that CopyDown fills, and printing it for another cell gives the shifted text.

// Where a formula stands: its book, its sheet (0-based index) and its cell. Relative
// references are read and printed against the host cell.
struct FormulaHost {
  Workbook* book = nullptr;
  int sheet = 0;
  CellAddress cell;
};

// A compiled formula. Its internals belong to the parser and evaluator; the rest of the
// engine stores it, shares it between cells and hands it back to them.
class Formula;

// Parses a formula without its leading "=" and binds its names and links to open books:
// "[WindData]Sheet1!Height" binds to the open book whose BookName is WindData, now.
// Throws FacilityError(errc::kFormulaSyntax) when the text does not parse.
std::shared_ptr<const Formula> ParseFormula(std::string_view text, const FormulaHost& host);

// Binds the sheets, books and names of a parsed formula again, as reading its printed text
// back at the host would now; the formula itself when every binding stays. Null when only
// the text can tell: a formula without references or names (it may read back as a constant),
// or one with a reference that prints as #REF! at this host.
std::shared_ptr<const Formula> RebindFormula(const std::shared_ptr<const Formula>& formula,
                                             const FormulaHost& host);

// The formula's text without "=", relative references printed for the host cell.
std::string FormulaText(const Formula& formula, const FormulaHost& host);

// Evaluates against the cached values of the cells it reads. Never throws.
Value Evaluate(const Formula& formula, const FormulaHost& host);

// True when the formula calls NOW, whose value moves at every calculation.
bool ReadsClock(const Formula& formula);
// True when the formula reads no cell, name or clock: it keeps its value for ever, and
// parsing its printed text again gives the same formula.
bool ReadsNothing(const Formula& formula);

// True when the formula names a book in brackets that was not open when it was parsed;
// such a cell keeps its cached value at recalculation.
bool HasUnboundLink(const Formula& formula);

}  // namespace gustline::wb
