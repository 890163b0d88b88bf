#include "FormulaCheck.h"

#include "core/workbook/FormulaAst.h"
#include "core/workbook/Workbook.h"

namespace gustline::books {
namespace {

using wb::SheetTarget;

bool OwnBook(const SheetTarget& target) {
  return target.kind == SheetTarget::Kind::Host || target.kind == SheetTarget::Kind::Local;
}

}  // namespace

std::string FormulaFault(const wb::Formula& formula, const wb::Workbook& book) {
  for (const auto& node : formula.nodes) {
    const auto index = static_cast<std::size_t>(node.aux);
    if (node.kind == wb::Formula::Kind::Unknown)
      return "unknown function '" + formula.texts[index] + "'";
    if (node.kind == wb::Formula::Kind::Ref &&
        formula.refs[index].sheet.kind == SheetTarget::Kind::Missing)
      return "no sheet '" + formula.refs[index].sheet.sheetText + "'";
    if (node.kind != wb::Formula::Kind::Name) continue;
    const auto& name = formula.names[index];
    if (name.sheet.kind == SheetTarget::Kind::Missing)
      return "no sheet '" + name.sheet.sheetText + "'";
    if (!OwnBook(name.sheet)) continue;
    if (name.slot < 0 || !book.Names().At(name.slot).defined)
      return "name '" + name.text + "' is not defined";
  }
  return {};
}

}  // namespace gustline::books
