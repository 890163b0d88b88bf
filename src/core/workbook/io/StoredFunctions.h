#pragma once

#include <string_view>

namespace gustline::wb {

// A worksheet function as a stored formula numbers it, with its fixed count of arguments,
// or kVariableArguments when the token that calls it says how many.
inline constexpr int kVariableArguments = -1;

struct StoredFunction {
  int number;
  std::string_view name;
  int arguments;
};

// The function of a number, or null for a number that stands for none.
const StoredFunction* StoredFunctionOf(int number);

}  // namespace gustline::wb
