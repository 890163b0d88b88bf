#include <iterator>

#include "core/workbook/formula/FormulaAst.h"

namespace gustline::wb {
namespace {

constexpr int kMany = 255;

// In FunctionId order.
constexpr FunctionInfo kFunctions[] = {
    {"IF", FunctionId::If, 2, 3},
    {"CHOOSE", FunctionId::Choose, 2, kMany},
    {"AND", FunctionId::And, 1, kMany},
    {"OR", FunctionId::Or, 1, kMany},
    {"INDEX", FunctionId::Index, 2, 3},
    {"MATCH", FunctionId::Match, 2, 3},
    {"VLOOKUP", FunctionId::VLookup, 3, 4},
    {"ABS", FunctionId::Abs, 1, 1},
    {"SIGN", FunctionId::Sign, 1, 1},
    {"LN", FunctionId::Ln, 1, 1},
    {"EXP", FunctionId::Exp, 1, 1},
    {"SQRT", FunctionId::Sqrt, 1, 1},
    {"ROUND", FunctionId::Round, 2, 2},
    {"MAX", FunctionId::Max, 1, kMany},
    {"MIN", FunctionId::Min, 1, kMany},
    {"SUM", FunctionId::Sum, 1, kMany},
    {"ISNUMBER", FunctionId::IsNumber, 1, 1},
    {"ISTEXT", FunctionId::IsText, 1, 1},
    {"ISNA", FunctionId::IsNa, 1, 1},
    {"CODE", FunctionId::Code, 1, 1},
    {"NOW", FunctionId::Now, 0, 0},
    {"CONCATENATE", FunctionId::Concatenate, 1, kMany},
};

bool SameNoCase(std::string_view a, std::string_view b) {
  if (a.size() != b.size()) return false;
  for (std::size_t i = 0; i < a.size(); ++i) {
    const char upper = a[i] >= 'a' && a[i] <= 'z' ? static_cast<char>(a[i] - 'a' + 'A') : a[i];
    if (upper != b[i]) return false;
  }
  return true;
}

}  // namespace

const FunctionInfo* FindFunction(std::string_view name) {
  for (const FunctionInfo& info : kFunctions) {
    if (SameNoCase(name, info.name)) return &info;
  }
  return nullptr;
}

const FunctionInfo& GetFunctionInfo(FunctionId id) {
  return kFunctions[static_cast<std::size_t>(id)];
}

}  // namespace gustline::wb
