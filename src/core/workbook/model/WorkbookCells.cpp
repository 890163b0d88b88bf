#include <cmath>
#include <string>
#include <utility>

#include "core/workbook/address/SheetRanges.h"
#include "core/workbook/formula/Formula.h"
#include "core/workbook/model/Workbook.h"
#include "core/workbook/value/FacilityError.h"
#include "core/workbook/value/NumberFormat.h"
#include "core/workbook/value/TextCompare.h"

namespace gustline::wb {
namespace {

// The text between double quotes with doubled quotes made single, when the whole text is one
// such literal: "Base ""A""" -> Base "A".
std::optional<std::string> TextLiteral(std::string_view text) {
  if (text.size() < 2 || text.front() != '"' || text.back() != '"') return std::nullopt;
  std::string inner;
  inner.reserve(text.size() - 2);
  for (std::size_t i = 1; i + 1 < text.size(); ++i) {
    if (text[i] == '"') {
      if (i + 2 >= text.size() || text[i + 1] != '"') return std::nullopt;
      ++i;
    }
    inner += text[i];
  }
  return inner;
}

// The constant that a formula text consisting of a single literal stands for.
std::optional<Value> LiteralOf(std::string_view formula) {
  formula = TrimBlanks(formula);
  if (formula.empty()) return std::nullopt;
  if (formula.front() == '"') {
    if (auto text = TextLiteral(formula)) return Value::Text(std::move(*text));
    return std::nullopt;
  }
  if (const auto number = ReadNumber(formula)) return Value::Number(*number);
  if (EqualNoCase(formula, "TRUE")) return Value::Boolean(true);
  if (EqualNoCase(formula, "FALSE")) return Value::Boolean(false);
  if (const auto error = ErrorFromText(formula)) return Value::Error(*error);
  return std::nullopt;
}

// A constant as a formula would write it.
std::string ConstantFormula(const Value& value) {
  if (!value.IsText()) return PlainText(value);
  std::string text = "\"";
  for (const char c : value.AsText()) {
    text += c;
    if (c == '"') text += '"';
  }
  return text + "\"";
}

Value NumberValue(double number) {
  return std::isfinite(number) ? Value::Number(number) : Value::Error(ErrorCode::Num);
}

}  // namespace

void Workbook::StoreConstant(int row, int col, Value value) {
  Sheet& sheet = Active();
  Cell* cell = sheet.Find(row, col);
  if (cell == nullptr && value.IsEmpty()) return;
  if (cell != nullptr && !cell->IsFormula() && cell->value == value) return;
  if (cell == nullptr) cell = &sheet.At(row, col);
  const bool hadFormula = cell->IsFormula();
  cell->formula.reset();
  cell->value = std::move(value);
  if (!cell->HasContent() && cell->style == 0) sheet.Erase(row, col);
  NoteChange(hadFormula);
}

double Workbook::CellNumber(int row, int col) {
  CheckCell(row, col);
  EnsureCalculated();
  const Cell* cell = Active().Find(row, col);
  return cell == nullptr ? 0 : cell->value.AsNumber();
}

void Workbook::SetCellNumber(int row, int col, double number) {
  CheckCell(row, col);
  StoreConstant(row, col, NumberValue(number));
}

std::string Workbook::CellText(int row, int col) {
  CheckCell(row, col);
  EnsureCalculated();
  const Cell* cell = Active().Find(row, col);
  if (cell == nullptr) return {};
  return DisplayText(cell->value, styles_.Get(cell->style).numberFormat);
}

void Workbook::SetCellText(int row, int col, std::string_view text) {
  CheckCell(row, col);
  StoreConstant(row, col, text.empty() ? Value() : Value::Text(std::string(text)));
}

std::string Workbook::CellEntry(int row, int col) {
  CheckCell(row, col);
  const Cell* cell = Active().Find(row, col);
  if (cell == nullptr) return {};
  if (cell->IsFormula()) return "=" + FormulaText(*cell->formula, HostOf(row, col));
  return PlainText(cell->value);
}

void Workbook::SetCellEntry(int row, int col, std::string_view entry) {
  CheckCell(row, col);
  if (!entry.empty() && entry.front() == '=') {
    const std::string_view formula = entry.substr(1);
    if (TrimBlanks(formula).empty())
      throw FacilityError(errc::kFormulaSyntax, "\"=\" alone is no formula");
    SetCellFormula(row, col, formula);
    return;
  }
  if (entry.empty()) return StoreConstant(row, col, Value());
  if (const auto number = ReadNumber(entry)) return StoreConstant(row, col, Value::Number(*number));
  const std::string_view trimmed = TrimBlanks(entry);
  if (EqualNoCase(trimmed, "TRUE")) return StoreConstant(row, col, Value::Boolean(true));
  if (EqualNoCase(trimmed, "FALSE")) return StoreConstant(row, col, Value::Boolean(false));
  if (const auto error = ErrorFromText(trimmed))
    return StoreConstant(row, col, Value::Error(*error));
  StoreConstant(row, col, Value::Text(std::string(entry)));
}

std::string Workbook::CellFormula(int row, int col) {
  CheckCell(row, col);
  const Cell* cell = Active().Find(row, col);
  if (cell == nullptr) return {};
  if (cell->IsFormula()) return FormulaText(*cell->formula, HostOf(row, col));
  return ConstantFormula(cell->value);
}

void Workbook::SetCellFormula(int row, int col, std::string_view formula) {
  CheckCell(row, col);
  if (TrimBlanks(formula).empty()) return StoreConstant(row, col, Value());
  if (auto literal = LiteralOf(formula)) return StoreConstant(row, col, std::move(*literal));
  auto parsed = ParseFormula(formula, HostOf(row, col));
  // The cached result stays: a link to a book that is not open keeps showing it.
  Active().At(row, col).formula = std::move(parsed);
  NoteChange(true);
}

void Workbook::ReenterFormula(int row, int col) {
  CheckCell(row, col);
  Cell* cell = Active().Find(row, col);
  const bool isFormula = cell != nullptr && cell->IsFormula();
  auto rebound = isFormula ? RebindFormula(cell->formula, HostOf(row, col)) : nullptr;
  if (!rebound) {
    const std::string text = CellFormula(row, col);
    // Only a single literal reads back otherwise than it stands: as the constant.
    if (isFormula && ReadsNothing(*cell->formula) && !LiteralOf(text)) return;
    return SetCellFormula(row, col, text);
  }
  // A formula that keeps every binding reads the same cells and calculates the same, the
  // clock apart; a change in a book it links to is followed without it.
  if (rebound == cell->formula) {
    if (ReadsClock(*rebound)) NoteChange(false);
    return;
  }
  cell->formula = std::move(rebound);
  NoteChange(true);
}

Value Workbook::CellValue(int row, int col) {
  CheckCell(row, col);
  EnsureCalculated();
  const Cell* cell = Active().Find(row, col);
  return cell == nullptr ? Value() : cell->value;
}

void Workbook::SetActiveFormula(std::string_view formula) {
  SetCellFormula(ActiveRow(), ActiveCol(), formula);
}

}  // namespace gustline::wb
