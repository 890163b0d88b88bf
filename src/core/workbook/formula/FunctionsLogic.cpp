#include <cmath>

#include "core/workbook/formula/Functions.h"

namespace gustline::wb::functions {
namespace {

// AND and OR: ranges give their numbers and booleans, direct texts are an error.
Operand Logical(Evaluator& ev, const Formula::Node& node, bool isAnd) {
  const Formula& f = ev.GetFormula();
  bool result = isAnd;
  bool any = false;
  const auto take = [&](bool flag) {
    any = true;
    result = isAnd ? (result && flag) : (result || flag);
  };
  for (int i = 0; i < node.count; ++i) {
    Operand arg = ev.Eval(f.KidIndex(node, i));
    if (arg.isRef) {
      const Value* error = VisitRange(arg.ref, [&](const Value& value) {
        if (value.IsNumber() || value.IsBoolean()) take(value.AsBoolean());
      });
      if (error) return Operand::Of(*error);
      continue;
    }
    const Value& value = arg.value;
    if (value.IsError()) return arg;
    if (value.IsText()) return ErrorOperand(ErrorCode::Value);
    if (value.IsNumber() || value.IsBoolean()) take(value.AsBoolean());
  }
  if (!any) return ErrorOperand(ErrorCode::Value);
  return Operand::Of(Value::Boolean(result));
}

}  // namespace

Operand And(Evaluator& ev, const Formula::Node& node) {
  return Logical(ev, node, true);
}

Operand Or(Evaluator& ev, const Formula::Node& node) {
  return Logical(ev, node, false);
}

Operand If(Evaluator& ev, const Formula::Node& node) {
  const Formula& f = ev.GetFormula();
  bool condition = false;
  if (auto error = ToBoolean(ev.Scalar(f.KidIndex(node, 0)), condition))
    return ErrorOperand(*error);
  if (condition) return ev.Eval(f.KidIndex(node, 1));
  if (node.count > 2) return ev.Eval(f.KidIndex(node, 2));
  return Operand::Of(Value::Boolean(false));
}

Operand Choose(Evaluator& ev, const Formula::Node& node) {
  const Formula& f = ev.GetFormula();
  double index = 0;
  if (auto error = ToNumber(ev.Scalar(f.KidIndex(node, 0)), index)) return ErrorOperand(*error);
  index = std::trunc(index);
  if (!(index >= 1 && index < node.count)) return ErrorOperand(ErrorCode::Value);
  return ev.Eval(f.KidIndex(node, static_cast<int>(index)));
}

Operand IsNumber(Evaluator& ev, const Formula::Node& node) {
  return Operand::Of(Value::Boolean(ev.Scalar(ev.GetFormula().KidIndex(node, 0)).IsNumber()));
}

Operand IsText(Evaluator& ev, const Formula::Node& node) {
  return Operand::Of(Value::Boolean(ev.Scalar(ev.GetFormula().KidIndex(node, 0)).IsText()));
}

Operand IsNa(Evaluator& ev, const Formula::Node& node) {
  const Value value = ev.Scalar(ev.GetFormula().KidIndex(node, 0));
  return Operand::Of(Value::Boolean(value.IsError() && value.AsError() == ErrorCode::NA));
}

// NA() marks a value that does not apply, as a table does outside its range.
Operand Na(Evaluator& /*ev*/, const Formula::Node& /*node*/) {
  return ErrorOperand(ErrorCode::NA);
}

}  // namespace gustline::wb::functions
