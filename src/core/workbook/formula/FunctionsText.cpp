#include "core/workbook/formula/Functions.h"

namespace gustline::wb::functions {

Operand Code(Evaluator& ev, const Formula::Node& node) {
  std::string text;
  if (auto error = ToText(ev.Scalar(ev.GetFormula().KidIndex(node, 0)), text))
    return ErrorOperand(*error);
  if (text.empty()) return ErrorOperand(ErrorCode::Value);
  return Operand::Of(Value::Number(static_cast<unsigned char>(text.front())));
}

Operand Concatenate(Evaluator& ev, const Formula::Node& node) {
  const Formula& f = ev.GetFormula();
  std::string text;
  std::string part;
  for (int i = 0; i < node.count; ++i) {
    if (auto error = ToText(ev.Scalar(f.KidIndex(node, i)), part)) return ErrorOperand(*error);
    text += part;
  }
  return Operand::Of(Value::Text(std::move(text)));
}

// A number as it stands; a text that reads wholly as a number, such as a factor typed into a
// cell that keeps its entries as text.
Operand ValueOf(Evaluator& ev, const Formula::Node& node) {
  const Value value = ev.Scalar(ev.GetFormula().KidIndex(node, 0));
  if (value.IsError() || value.IsNumber()) return Operand::Of(value);
  std::string text;
  if (auto error = ToText(value, text)) return ErrorOperand(*error);
  const std::optional<double> number = ReadNumber(text);
  if (!number) return ErrorOperand(ErrorCode::Value);
  return Operand::Of(Value::Number(*number));
}

}  // namespace gustline::wb::functions
