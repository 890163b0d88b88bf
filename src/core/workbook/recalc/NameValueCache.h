#pragma once

#include <cstdint>
#include <optional>

#include "core/workbook/formula/Evaluator.h"

namespace gustline::wb {

// The values of defined names while a calculation runs: a name that formulas or other names
// use many times is evaluated once, so that names doubling each other cannot take the
// program for ever. The values hold while a scope is open on this thread and are forgotten
// as the outermost scope closes and whenever a cell's value changes inside one.
class NameValueScope {
 public:
  NameValueScope();
  ~NameValueScope();
  NameValueScope(const NameValueScope&) = delete;
  NameValueScope& operator=(const NameValueScope&) = delete;
};

// A name's value as evaluated at a depth of names (which decides whether it runs into the
// depth limit), or nullopt when unknown or no scope is open.
std::optional<Operand> KnownNameValue(std::uint64_t bookId, int slot, int depth);
void KeepNameValue(std::uint64_t bookId, int slot, int depth, const Operand& value);
void ForgetNameValues();

}  // namespace gustline::wb
