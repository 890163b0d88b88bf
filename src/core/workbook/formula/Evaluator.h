#pragma once

#include <optional>
#include <string>

#include "core/workbook/formula/FormulaAst.h"
#include "core/workbook/model/Sheet.h"
#include "core/workbook/value/Value.h"

namespace gustline::wb {

// A rectangle of cells on a sheet of an open book, as references evaluate.
struct RangeRef {
  Workbook* book = nullptr;
  const Sheet* sheet = nullptr;
  Area area;
  bool IsSingleCell() const {
    return area.firstRow == area.lastRow && area.firstCol == area.lastCol;
  }
};

// What a node yields: a value, or a reference for the functions that take ranges.
struct Operand {
  Value value;
  RangeRef ref;
  bool isRef = false;

  static Operand Of(Value value) { return Operand{std::move(value), {}, false}; }
  static Operand Of(const RangeRef& ref) { return Operand{{}, ref, true}; }
};

inline Operand ErrorOperand(ErrorCode code) {
  return Operand::Of(Value::Error(code));
}

// The value of a cell of a range's sheet; an unwritten cell is empty.
const Value& ValueAt(const Sheet& sheet, int row, int col);

// The cells of a range row by row to `visit`, up to the first that holds an error, which is
// returned; none when every cell was visited. The aggregates read ranges this way.
template <typename Visit>
const Value* VisitRange(const RangeRef& range, Visit visit) {
  for (int row = range.area.firstRow; row <= range.area.lastRow; ++row) {
    for (int col = range.area.firstCol; col <= range.area.lastCol; ++col) {
      const Value& value = ValueAt(*range.sheet, row, col);
      if (value.IsError()) return &value;
      visit(value);
    }
  }
  return nullptr;
}

// Sees every cell that an evaluation reads. Recalculation sets one while it orders a
// circular group of cells by the reads that actually happen.
class CellReadObserver {
 public:
  virtual ~CellReadObserver() = default;
  virtual void Read(const Sheet& sheet, int row, int col) = 0;
};
// The observer of this thread's evaluations; null when none.
CellReadObserver*& CurrentCellReadObserver();

// Conversions of the language: each gives the error value that the context yields.
std::optional<ErrorCode> ToNumber(const Value& value, double& number);
std::optional<ErrorCode> ToText(const Value& value, std::string& text);
std::optional<ErrorCode> ToBoolean(const Value& value, bool& flag);
// A number as a spreadsheet shows it in General form: up to 15 significant digits.
std::string NumberToText(double number);
// Numbers < texts < booleans; texts without regard to case; empty as 0, "" or FALSE.
// Neither value is an error.
int CompareValues(const Value& a, const Value& b);
// A number result, or #NUM! when it is not finite.
Value NumberResult(double number);

// Names that refer to names deeper than this are taken as circular, by the evaluation and by
// the order of calculation alike.
inline constexpr int kMaxNameDepth = 32;

// Walks the nodes of one formula for one host cell.
class Evaluator {
 public:
  Evaluator(const Formula& formula, const FormulaHost& host, int nameDepth = 0)
      : formula_(formula), host_(host), nameDepth_(nameDepth) {}

  const Formula& GetFormula() const { return formula_; }
  const FormulaHost& Host() const { return host_; }

  Operand Eval(std::int32_t index);
  // The node's single value: a range in a scalar context intersects the host's row or column.
  Value Scalar(std::int32_t index);
  Value Deref(const Operand& operand) const;

 private:
  Operand EvalRef(const RefTarget& ref);
  Operand EvalName(const NameTarget& name);
  Operand EvalUnary(const Formula::Node& node);
  Operand EvalBinary(const Formula::Node& node);
  Operand EvalRange(const Formula::Node& node);

  const Formula& formula_;
  const FormulaHost& host_;
  int nameDepth_;
};

}  // namespace gustline::wb
