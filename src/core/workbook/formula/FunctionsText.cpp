#include "core/workbook/formula/Evaluator.h"

namespace gustline::wb {

Operand CallTextFunction(Evaluator& ev, const Formula::Node& node) {
  const Formula& f = ev.GetFormula();
  std::string text;
  if (static_cast<FunctionId>(node.aux) == FunctionId::Code) {
    if (auto error = ToText(ev.Scalar(f.KidIndex(node, 0)), text))
      return Operand::Of(Value::Error(*error));
    if (text.empty()) return Operand::Of(Value::Error(ErrorCode::Value));
    return Operand::Of(Value::Number(static_cast<unsigned char>(text.front())));
  }
  std::string part;
  for (int i = 0; i < node.count; ++i) {
    if (auto error = ToText(ev.Scalar(f.KidIndex(node, i)), part))
      return Operand::Of(Value::Error(*error));
    text += part;
  }
  return Operand::Of(Value::Text(std::move(text)));
}

}  // namespace gustline::wb
