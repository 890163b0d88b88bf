#include "FormulaCheck.h"

#include "core/workbook/formula/FormulaAst.h"
#include "core/workbook/model/BookRegistry.h"
#include "core/workbook/model/Workbook.h"

namespace gustline::books {
namespace {

using wb::SheetTarget;

// The fault of the book and sheet part of a reference or name, empty when there is none.
std::string TargetFault(const SheetTarget& target, const wb::Workbook*& linked) {
  linked = nullptr;
  switch (target.kind) {
    case SheetTarget::Kind::Missing:
      return "no sheet '" + target.sheetText + "'";
    case SheetTarget::Kind::Unbound:
      return "no linked book '" + target.bookText + "'; link it with --link";
    case SheetTarget::Kind::Link:
      linked = wb::BookRegistry::Instance().FindById(target.bookId);
      if (linked == nullptr) return "the book '" + target.bookText + "' is closed";
      return {};
    default:
      return {};
  }
}

}  // namespace

std::string FormulaFault(const wb::Formula& formula, const wb::Workbook& book,
                         const std::function<bool(std::string_view)>& mayBeUndefined) {
  const wb::Workbook* linked = nullptr;
  for (const auto& node : formula.nodes) {
    const auto index = static_cast<std::size_t>(node.aux);
    if (node.kind == wb::Formula::Kind::Unknown)
      return "unknown function '" + formula.texts[index] + "'";
    if (node.kind == wb::Formula::Kind::Ref) {
      const auto& target = formula.refs[index].sheet;
      if (auto fault = TargetFault(target, linked); !fault.empty()) return fault;
      if (linked && linked->FindSheet(target.sheetText) == 0)
        return "the book '" + target.bookText + "' has no sheet '" + target.sheetText + "'";
    }
    if (node.kind != wb::Formula::Kind::Name) continue;
    const auto& name = formula.names[index];
    if (auto fault = TargetFault(name.sheet, linked); !fault.empty()) return fault;
    const wb::Workbook& owner = linked ? *linked : book;
    if (name.slot >= 0 && owner.Names().At(name.slot).defined) continue;
    if (linked) return "the book '" + name.sheet.bookText + "' does not define '" + name.text + "'";
    if (!mayBeUndefined(name.text)) return "name '" + name.text + "' is not defined";
  }
  return {};
}

}  // namespace gustline::books
