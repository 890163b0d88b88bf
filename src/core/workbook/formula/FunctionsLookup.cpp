#include <cmath>

#include "core/workbook/formula/Functions.h"

namespace gustline::wb::functions {
namespace {

bool Comparable(const Value& a, const Value& b) {
  return a.GetKind() == b.GetKind() && !a.IsEmpty() && !a.IsError();
}

// The 0-based position of the value along a line of cells by the match type of MATCH,
// or -1. Entries of another kind than the value are passed over.
int FindInLine(const Value& wanted, const RangeRef& line, bool byRow, int type) {
  const Area& area = line.area;
  const int length = byRow ? area.lastRow - area.firstRow + 1 : area.lastCol - area.firstCol + 1;
  int found = -1;
  for (int i = 0; i < length; ++i) {
    const Value& entry = byRow ? ValueAt(*line.sheet, area.firstRow + i, area.firstCol)
                               : ValueAt(*line.sheet, area.firstRow, area.firstCol + i);
    if (!Comparable(entry, wanted)) continue;
    const int order = CompareValues(entry, wanted);
    if (type == 0) {
      if (order == 0) return i;
    } else if (type > 0) {
      // Ascending: stop at the first entry above the value.
      if (order > 0) break;
      found = i;
    } else {
      // Descending: stop at the first entry below the value.
      if (order < 0) break;
      found = i;
    }
  }
  return found;
}

// The lookup value: errors propagate, an empty cell matches nothing.
std::optional<Operand> LookupValue(const Value& value) {
  if (value.IsError()) return Operand::Of(value);
  if (value.IsEmpty()) return ErrorOperand(ErrorCode::NA);
  return std::nullopt;
}

// A range argument; a value that is no range gives its error or `otherwise`.
std::optional<Operand> NeedRange(const Operand& arg, ErrorCode otherwise) {
  if (arg.isRef) return std::nullopt;
  return arg.value.IsError() ? Operand::Of(arg.value) : ErrorOperand(otherwise);
}

}  // namespace

Operand Match(Evaluator& ev, const Formula::Node& node) {
  const Formula& f = ev.GetFormula();
  const Value wanted = ev.Scalar(f.KidIndex(node, 0));
  if (auto early = LookupValue(wanted)) return *early;
  const Operand range = ev.Eval(f.KidIndex(node, 1));
  if (auto early = NeedRange(range, ErrorCode::NA)) return *early;
  double type = 1;
  if (node.count > 2 && f.Kid(node, 2).kind != Formula::Kind::Missing) {
    if (auto error = ToNumber(ev.Scalar(f.KidIndex(node, 2)), type)) return ErrorOperand(*error);
  }
  const Area& area = range.ref.area;
  const bool column = area.firstCol == area.lastCol;
  if (!column && area.firstRow != area.lastRow) return ErrorOperand(ErrorCode::NA);
  const int kind = type > 0 ? 1 : (type < 0 ? -1 : 0);
  const int position = FindInLine(wanted, range.ref, column, kind);
  if (position < 0) return ErrorOperand(ErrorCode::NA);
  return Operand::Of(Value::Number(position + 1));
}

Operand VLookup(Evaluator& ev, const Formula::Node& node) {
  const Formula& f = ev.GetFormula();
  const Value wanted = ev.Scalar(f.KidIndex(node, 0));
  if (auto early = LookupValue(wanted)) return *early;
  const Operand table = ev.Eval(f.KidIndex(node, 1));
  if (auto early = NeedRange(table, ErrorCode::NA)) return *early;
  double column = 0;
  if (auto error = ToNumber(ev.Scalar(f.KidIndex(node, 2)), column)) return ErrorOperand(*error);
  column = std::trunc(column);
  bool approximate = true;
  if (node.count > 3 && f.Kid(node, 3).kind != Formula::Kind::Missing) {
    if (auto error = ToBoolean(ev.Scalar(f.KidIndex(node, 3)), approximate))
      return ErrorOperand(*error);
  }
  const Area& area = table.ref.area;
  if (column < 1) return ErrorOperand(ErrorCode::Value);
  if (column > area.lastCol - area.firstCol + 1) return ErrorOperand(ErrorCode::Ref);
  RangeRef firstColumn = table.ref;
  firstColumn.area.lastCol = area.firstCol;
  const int row = FindInLine(wanted, firstColumn, true, approximate ? 1 : 0);
  if (row < 0) return ErrorOperand(ErrorCode::NA);
  return Operand::Of(
      ValueAt(*table.ref.sheet, area.firstRow + row, area.firstCol + static_cast<int>(column) - 1));
}

Operand Index(Evaluator& ev, const Formula::Node& node) {
  const Formula& f = ev.GetFormula();
  const Operand range = ev.Eval(f.KidIndex(node, 0));
  if (auto early = NeedRange(range, ErrorCode::Value)) return *early;
  double row = 0;
  if (auto error = ToNumber(ev.Scalar(f.KidIndex(node, 1)), row)) return ErrorOperand(*error);
  const bool hasColumn = node.count > 2 && f.Kid(node, 2).kind != Formula::Kind::Missing;
  double column = 0;
  if (hasColumn) {
    if (auto error = ToNumber(ev.Scalar(f.KidIndex(node, 2)), column)) return ErrorOperand(*error);
  }
  const Area& area = range.ref.area;
  const int height = area.lastRow - area.firstRow + 1;
  const int width = area.lastCol - area.firstCol + 1;
  row = std::trunc(row);
  column = std::trunc(column);
  // A one-row range takes its single position along the row.
  if (!hasColumn && height == 1) {
    column = row;
    row = 1;
  } else if (!hasColumn && width == 1) {
    column = 1;
  }
  if (row < 0 || column < 0) return ErrorOperand(ErrorCode::Value);
  if (row > height || column > width) return ErrorOperand(ErrorCode::Ref);
  RangeRef result = range.ref;
  if (row > 0)
    result.area.firstRow = result.area.lastRow = area.firstRow + static_cast<int>(row) - 1;
  if (column > 0)
    result.area.firstCol = result.area.lastCol = area.firstCol + static_cast<int>(column) - 1;
  return Operand::Of(result);
}

}  // namespace gustline::wb::functions
