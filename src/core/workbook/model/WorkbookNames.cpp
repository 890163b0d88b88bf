#include <string>
#include <utility>

#include "core/workbook/formula/Formula.h"
#include "core/workbook/model/Workbook.h"
#include "core/workbook/value/FacilityError.h"
#include "core/workbook/value/TextCompare.h"

namespace gustline::wb {
namespace {

// Names may refer to names; a chain longer than this is taken for a loop.
constexpr int kMaxReferenceChain = 16;

// The position of the "!" that ends a sheet part, outside quotes, or npos.
std::size_t SheetSeparator(std::string_view text) {
  bool quoted = false;
  std::size_t found = std::string_view::npos;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] == '\'') quoted = !quoted;
    if (text[i] == '!' && !quoted) found = i;
  }
  return found;
}

// 'Page 1' -> Page 1, with doubled quotes made single.
std::string UnquoteSheet(std::string_view text) {
  if (text.size() < 2 || text.front() != '\'' || text.back() != '\'') return std::string(text);
  std::string name;
  for (std::size_t i = 1; i + 1 < text.size(); ++i) {
    name += text[i];
    if (text[i] == '\'' && text[i + 1] == '\'') ++i;
  }
  return name;
}

std::optional<std::pair<int, Area>> Resolve(Workbook& book, std::string_view text, int defaultSheet,
                                            int depth) {
  text = TrimBlanks(text);
  if (!text.empty() && text.front() == '[') {
    const auto close = text.find(']');
    if (close == std::string_view::npos || !EqualNoCase(text.substr(1, close - 1), book.BookName()))
      return std::nullopt;
    text.remove_prefix(close + 1);
  }
  int sheet = defaultSheet;
  if (const auto bang = SheetSeparator(text); bang != std::string_view::npos) {
    sheet = book.FindSheet(UnquoteSheet(TrimBlanks(text.substr(0, bang))));
    if (sheet == 0) return std::nullopt;
    text.remove_prefix(bang + 1);
  }
  if (const auto area = ParseAreaText(text)) return std::pair{sheet, *area};

  const int slot = book.Names().Find(TrimBlanks(text));
  if (slot < 0 || depth >= kMaxReferenceChain) return std::nullopt;
  const DefinedNames::Entry& entry = book.Names().At(slot);
  if (!entry.defined) return std::nullopt;
  // The parsed definition follows renamed sheets; its text is printed as the book is now.
  const std::string refersTo =
      entry.formula ? FormulaText(*entry.formula, FormulaHost{&book, 0, {1, 1}}) : entry.refersTo;
  return Resolve(book, refersTo, 1, depth + 1);
}

}  // namespace

void Workbook::SetDefinedName(std::string_view name, std::string_view refersTo) {
  name = TrimBlanks(name);
  if (name.empty()) throw FacilityError(errc::kBadArgument, "A defined name cannot be empty");
  if (!refersTo.empty() && refersTo.front() == '=') refersTo.remove_prefix(1);
  auto formula = ParseFormula(refersTo, FormulaHost{this, 0, {1, 1}});
  const int slot = names_.Slot(name);
  if (!names_.At(slot).defined) names_.At(slot).name = std::string(name);
  names_.Define(slot, std::string(refersTo), std::move(formula));
  NoteChange(true);
}

std::optional<std::string> Workbook::DefinedName(std::string_view name) const {
  const int slot = names_.Find(TrimBlanks(name));
  if (slot < 0 || !names_.At(slot).defined) return std::nullopt;
  return names_.At(slot).refersTo;
}

int Workbook::NameCount() const {
  return static_cast<int>(names_.DefinedOrder().size());
}

std::string Workbook::NameAt(int index) const {
  if (index < 1 || index > NameCount())
    throw FacilityError(errc::kBadArgument,
                        "There is no defined name number " + std::to_string(index));
  return names_.At(names_.DefinedOrder()[static_cast<std::size_t>(index - 1)]).name;
}

std::optional<std::pair<int, Area>> Workbook::ResolveReference(std::string_view rangeOrName) {
  return Resolve(*this, rangeOrName, ActiveSheet(), 0);
}

}  // namespace gustline::wb
