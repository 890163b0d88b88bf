#include <algorithm>
#include <iterator>
#include <span>

#include "core/workbook/formula/FormulaAst.h"
#include "core/workbook/formula/Functions.h"
#include "core/workbook/value/TextCompare.h"

namespace gustline::wb {
namespace {

constexpr int kMany = 255;

constexpr FunctionInfo kFunctions[] = {
    {"ABS", 1, 1, functions::Abs},
    {"AND", 1, kMany, functions::And},
    {"CHOOSE", 2, kMany, functions::Choose},
    {"CODE", 1, 1, functions::Code},
    {"CONCATENATE", 1, kMany, functions::Concatenate},
    {"EXP", 1, 1, functions::Exp},
    {"IF", 2, 3, functions::If},
    {"INDEX", 2, 3, functions::Index},
    {"ISNA", 1, 1, functions::IsNa},
    {"ISNUMBER", 1, 1, functions::IsNumber},
    {"ISTEXT", 1, 1, functions::IsText},
    {"LN", 1, 1, functions::Ln},
    {"MATCH", 2, 3, functions::Match},
    {"MAX", 1, kMany, functions::Max},
    {"MIN", 1, kMany, functions::Min},
    {"NA", 0, 0, functions::Na},
    {"NOW", 0, 0, functions::Now},
    {"OR", 1, kMany, functions::Or},
    {"ROUND", 2, 2, functions::Round},
    {"SIGN", 1, 1, functions::Sign},
    {"SQRT", 1, 1, functions::Sqrt},
    {"SUM", 1, kMany, functions::Sum},
    {"VALUE", 1, 1, functions::ValueOf},
    {"VLOOKUP", 3, 4, functions::VLookup},
};

// FindFunction searches by halving: the rows stand in ascending order of name, each name once.
constexpr bool InNameOrder(std::span<const FunctionInfo> table) {
  for (std::size_t i = 1; i < table.size(); ++i)
    if (!LessNoCase(table[i - 1].name, table[i].name)) return false;
  return true;
}
static_assert(InNameOrder(kFunctions), "the rows of kFunctions must be in ascending name order");

}  // namespace

std::int32_t FindFunction(std::string_view name) {
  const auto found = std::lower_bound(
      std::begin(kFunctions), std::end(kFunctions), name,
      [](const FunctionInfo& info, std::string_view key) { return LessNoCase(info.name, key); });
  if (found == std::end(kFunctions) || !EqualNoCase(found->name, name)) return -1;
  return static_cast<std::int32_t>(found - std::begin(kFunctions));
}

const FunctionInfo& FunctionAt(std::int32_t index) {
  return kFunctions[static_cast<std::size_t>(index)];
}

}  // namespace gustline::wb
