#include "core/workbook/formula/Evaluator.h"

#include <algorithm>
#include <cctype>
#include <cmath>
#include <cstdio>
#include <cstdlib>

#include "core/workbook/model/BookRegistry.h"
#include "core/workbook/model/Workbook.h"
#include "core/workbook/recalc/NameValueCache.h"
#include "core/workbook/value/TextCompare.h"

namespace gustline::wb {
namespace {

int KindRank(Value::Kind kind) {
  switch (kind) {
    case Value::Kind::Number:
      return 0;
    case Value::Kind::Text:
      return 1;
    default:
      return 2;
  }
}

// An empty cell takes the part of the other side's kind: 0, "" or FALSE.
Value EmptyAs(const Value& other) {
  if (other.IsText()) return Value::Text("");
  if (other.IsBoolean()) return Value::Boolean(false);
  return Value::Number(0);
}

int CompareText(const std::string& a, const std::string& b) {
  if (LessNoCase(a, b)) return -1;
  return LessNoCase(b, a) ? 1 : 0;
}

}  // namespace

CellReadObserver*& CurrentCellReadObserver() {
  thread_local CellReadObserver* observer = nullptr;
  return observer;
}

const Value& ValueAt(const Sheet& sheet, int row, int col) {
  static const Value kEmpty;
  if (CellReadObserver* observer = CurrentCellReadObserver()) observer->Read(sheet, row, col);
  const Cell* cell = sheet.Find(row, col);
  return cell ? cell->value : kEmpty;
}

std::optional<ErrorCode> ToNumber(const Value& value, double& number) {
  switch (value.GetKind()) {
    case Value::Kind::Text:
      return ErrorCode::Value;
    case Value::Kind::Error:
      return value.AsError();
    default:
      number = value.AsNumber();
      return std::nullopt;
  }
}

std::optional<ErrorCode> ToText(const Value& value, std::string& text) {
  switch (value.GetKind()) {
    case Value::Kind::Empty:
      text.clear();
      break;
    case Value::Kind::Number:
      text = NumberToText(value.AsNumber());
      break;
    case Value::Kind::Text:
      text = value.AsText();
      break;
    case Value::Kind::Boolean:
      text = value.AsBoolean() ? "TRUE" : "FALSE";
      break;
    case Value::Kind::Error:
      return value.AsError();
  }
  return std::nullopt;
}

std::optional<ErrorCode> ToBoolean(const Value& value, bool& flag) {
  double number = 0;
  if (auto error = ToNumber(value, number)) return error;
  flag = number != 0;
  return std::nullopt;
}

std::string NumberToText(double number) {
  if (number == 0) return "0";
  if (!std::isfinite(number)) return "#NUM!";
  // The value as 15 significant digits show it, then the fewest digits that give it back.
  char buffer[40];
  std::snprintf(buffer, sizeof buffer, "%.14e", number);
  const double shown = std::strtod(buffer, nullptr);
  for (int precision = 0; precision < 15; ++precision) {
    std::snprintf(buffer, sizeof buffer, "%.*e", precision, shown);
    if (std::strtod(buffer, nullptr) == shown) break;
  }
  // buffer: [-]d[.ddd]e[+-]xx
  std::string text(buffer);
  const std::size_t e = text.find('e');
  const int exponent = std::atoi(text.c_str() + e + 1);
  std::string digits;
  for (std::size_t i = 0; i < e; ++i) {
    if (std::isdigit(static_cast<unsigned char>(text[i]))) digits += text[i];
  }
  while (digits.size() > 1 && digits.back() == '0') digits.pop_back();
  std::string out = number < 0 ? "-" : "";
  if (exponent >= 15 || exponent < -9) {
    out += digits.substr(0, 1);
    if (digits.size() > 1) out += "." + digits.substr(1);
    char tail[16];
    std::snprintf(tail, sizeof tail, "E%c%02d", exponent < 0 ? '-' : '+', std::abs(exponent));
    return out + tail;
  }
  if (exponent < 0)
    return out + "0." + std::string(static_cast<std::size_t>(-exponent - 1), '0') + digits;
  const auto whole = static_cast<std::size_t>(exponent) + 1;
  if (digits.size() <= whole) return out + digits + std::string(whole - digits.size(), '0');
  return out + digits.substr(0, whole) + "." + digits.substr(whole);
}

int CompareValues(const Value& a, const Value& b) {
  if (a.IsEmpty() && b.IsEmpty()) return 0;
  if (a.IsEmpty()) return CompareValues(EmptyAs(b), b);
  if (b.IsEmpty()) return CompareValues(a, EmptyAs(a));
  const int rankA = KindRank(a.GetKind());
  const int rankB = KindRank(b.GetKind());
  if (rankA != rankB) return rankA < rankB ? -1 : 1;
  if (a.IsText()) return CompareText(a.AsText(), b.AsText());
  if (a.AsNumber() == b.AsNumber()) return 0;
  return a.AsNumber() < b.AsNumber() ? -1 : 1;
}

Value NumberResult(double number) {
  return std::isfinite(number) ? Value::Number(number) : Value::Error(ErrorCode::Num);
}

Operand Evaluator::Eval(std::int32_t index) {
  const Formula::Node& node = formula_.nodes[static_cast<std::size_t>(index)];
  switch (node.kind) {
    case Formula::Kind::Number:
      return Operand::Of(Value::Number(node.number));
    case Formula::Kind::Text:
      return Operand::Of(Value::Text(formula_.texts[static_cast<std::size_t>(node.aux)]));
    case Formula::Kind::Boolean:
      return Operand::Of(Value::Boolean(node.number != 0));
    case Formula::Kind::Error:
      return ErrorOperand(static_cast<ErrorCode>(node.aux));
    case Formula::Kind::Ref:
      return EvalRef(formula_.refs[static_cast<std::size_t>(node.aux)]);
    case Formula::Kind::Name:
      return EvalName(formula_.names[static_cast<std::size_t>(node.aux)]);
    case Formula::Kind::Unary:
      return EvalUnary(node);
    case Formula::Kind::Binary:
      return static_cast<BinaryOp>(node.aux) == BinaryOp::Range ? EvalRange(node)
                                                                : EvalBinary(node);
    case Formula::Kind::Paren:
      return Eval(formula_.KidIndex(node, 0));
    case Formula::Kind::Call:
      return FunctionAt(node.aux).body(*this, node);
    case Formula::Kind::Unknown:
      return ErrorOperand(ErrorCode::Name);
    case Formula::Kind::Missing:
      break;
  }
  return Operand{};
}

Value Evaluator::Scalar(std::int32_t index) {
  return Deref(Eval(index));
}

Value Evaluator::Deref(const Operand& operand) const {
  if (!operand.isRef) return operand.value;
  const Area& area = operand.ref.area;
  const Sheet& sheet = *operand.ref.sheet;
  if (operand.ref.IsSingleCell()) return ValueAt(sheet, area.firstRow, area.firstCol);
  const int row = host_.cell.row;
  const int col = host_.cell.col;
  if (area.firstCol == area.lastCol && row >= area.firstRow && row <= area.lastRow)
    return ValueAt(sheet, row, area.firstCol);
  if (area.firstRow == area.lastRow && col >= area.firstCol && col <= area.lastCol)
    return ValueAt(sheet, area.firstRow, col);
  return Value::Error(ErrorCode::Value);
}

Operand Evaluator::EvalRef(const RefTarget& ref) {
  const auto place = [this](const RefCorner& corner, int& row, int& col) {
    row = corner.rowAbs ? corner.row : host_.cell.row + corner.row;
    col = corner.colAbs ? corner.col : host_.cell.col + corner.col;
    return row >= 1 && row <= kMaxRow && col >= 1 && col <= kMaxCol;
  };
  int row1, col1, row2, col2;
  if (!place(ref.first, row1, col1) || !place(ref.last, row2, col2))
    return ErrorOperand(ErrorCode::Ref);
  RangeRef range;
  range.area =
      Area{std::min(row1, row2), std::min(col1, col2), std::max(row1, row2), std::max(col1, col2)};
  Workbook* book = host_.book;
  switch (ref.sheet.kind) {
    case SheetTarget::Kind::Host:
      if (book == nullptr || host_.sheet < 0 || host_.sheet >= book->SheetCount())
        return ErrorOperand(ErrorCode::Ref);
      range.sheet = &book->GetSheet(host_.sheet + 1);
      break;
    case SheetTarget::Kind::Local:
      range.sheet = book ? book->SheetById(ref.sheet.sheetId) : nullptr;
      break;
    case SheetTarget::Kind::Link: {
      book = BookRegistry::Instance().FindById(ref.sheet.bookId);
      if (book == nullptr) return ErrorOperand(ErrorCode::Ref);
      book->EnsureCalculated();
      const int index = book->FindSheet(ref.sheet.sheetText);
      if (index > 0) range.sheet = &book->GetSheet(index);
      break;
    }
    case SheetTarget::Kind::Unbound:
    case SheetTarget::Kind::Missing:
      break;
  }
  if (range.sheet == nullptr) return ErrorOperand(ErrorCode::Ref);
  range.book = book;
  return Operand::Of(range);
}

Operand Evaluator::EvalName(const NameTarget& name) {
  Workbook* book = host_.book;
  if (name.sheet.kind == SheetTarget::Kind::Unbound) return ErrorOperand(ErrorCode::Ref);
  if (name.sheet.kind == SheetTarget::Kind::Link) {
    book = BookRegistry::Instance().FindById(name.sheet.bookId);
    if (book == nullptr) return ErrorOperand(ErrorCode::Ref);
    book->EnsureCalculated();
  }
  if (book == nullptr || name.slot < 0 || name.slot >= book->Names().SlotCount())
    return ErrorOperand(ErrorCode::Name);
  const DefinedNames::Entry& entry = book->Names().At(name.slot);
  if (!entry.defined || entry.formula == nullptr) return ErrorOperand(ErrorCode::Name);
  if (nameDepth_ >= kMaxNameDepth) return ErrorOperand(ErrorCode::Ref);
  if (auto known = KnownNameValue(book->Id(), name.slot, nameDepth_)) return *std::move(known);
  const FormulaHost definitionHost{book, 0, CellAddress{1, 1}};
  Evaluator inner(*entry.formula, definitionHost, nameDepth_ + 1);
  Operand value = inner.Eval(entry.formula->root);
  KeepNameValue(book->Id(), name.slot, nameDepth_, value);
  return value;
}

Operand Evaluator::EvalUnary(const Formula::Node& node) {
  Value value = Scalar(formula_.KidIndex(node, 0));
  const auto op = static_cast<UnaryOp>(node.aux);
  if (op == UnaryOp::Plus) return Operand::Of(std::move(value));
  double number = 0;
  if (auto error = ToNumber(value, number)) return ErrorOperand(*error);
  return Operand::Of(NumberResult(op == UnaryOp::Minus ? -number : number / 100));
}

Operand Evaluator::EvalBinary(const Formula::Node& node) {
  const Value left = Scalar(formula_.KidIndex(node, 0));
  const Value right = Scalar(formula_.KidIndex(node, 1));
  if (left.IsError()) return Operand::Of(left);
  if (right.IsError()) return Operand::Of(right);
  const auto op = static_cast<BinaryOp>(node.aux);
  switch (op) {
    case BinaryOp::Concat: {
      std::string a, b;
      ToText(left, a);
      ToText(right, b);
      return Operand::Of(Value::Text(a + b));
    }
    case BinaryOp::Eq:
      return Operand::Of(Value::Boolean(CompareValues(left, right) == 0));
    case BinaryOp::Ne:
      return Operand::Of(Value::Boolean(CompareValues(left, right) != 0));
    case BinaryOp::Lt:
      return Operand::Of(Value::Boolean(CompareValues(left, right) < 0));
    case BinaryOp::Gt:
      return Operand::Of(Value::Boolean(CompareValues(left, right) > 0));
    case BinaryOp::Le:
      return Operand::Of(Value::Boolean(CompareValues(left, right) <= 0));
    case BinaryOp::Ge:
      return Operand::Of(Value::Boolean(CompareValues(left, right) >= 0));
    default:
      break;
  }
  double a = 0, b = 0;
  if (auto error = ToNumber(left, a)) return ErrorOperand(*error);
  if (auto error = ToNumber(right, b)) return ErrorOperand(*error);
  switch (op) {
    case BinaryOp::Add:
      return Operand::Of(NumberResult(a + b));
    case BinaryOp::Sub:
      return Operand::Of(NumberResult(a - b));
    case BinaryOp::Mul:
      return Operand::Of(NumberResult(a * b));
    case BinaryOp::Div:
      if (b == 0) return ErrorOperand(ErrorCode::Div0);
      return Operand::Of(NumberResult(a / b));
    case BinaryOp::Pow:
      if (a == 0 && b == 0) return ErrorOperand(ErrorCode::Num);
      return Operand::Of(NumberResult(std::pow(a, b)));
    default:
      return ErrorOperand(ErrorCode::Value);
  }
}

Operand Evaluator::EvalRange(const Formula::Node& node) {
  const Operand left = Eval(formula_.KidIndex(node, 0));
  const Operand right = Eval(formula_.KidIndex(node, 1));
  for (const Operand* side : {&left, &right}) {
    if (!side->isRef) {
      return side->value.IsError() ? Operand::Of(side->value) : ErrorOperand(ErrorCode::Value);
    }
  }
  if (left.ref.sheet != right.ref.sheet) return ErrorOperand(ErrorCode::Ref);
  RangeRef range = left.ref;
  const Area& a = left.ref.area;
  const Area& b = right.ref.area;
  range.area = Area{std::min(a.firstRow, b.firstRow), std::min(a.firstCol, b.firstCol),
                    std::max(a.lastRow, b.lastRow), std::max(a.lastCol, b.lastCol)};
  return Operand::Of(range);
}

Value Evaluate(const Formula& formula, const FormulaHost& host) {
  const NameValueScope names;
  Evaluator evaluator(formula, host);
  Value value = evaluator.Scalar(formula.root);
  if (value.IsEmpty()) return Value::Number(0);
  return value;
}

}  // namespace gustline::wb
