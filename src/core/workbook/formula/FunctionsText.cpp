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

}  // namespace gustline::wb::functions
