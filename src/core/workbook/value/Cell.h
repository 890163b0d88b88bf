#pragma once

#include <cstdint>
#include <memory>

#include "core/workbook/value/Value.h"

namespace gustline::wb {

class Formula;

// A cell holds nothing, a constant, or a formula with its cached result in `value`.
// Formulas keep their relative references as offsets from the cell that holds them, so one
// compiled formula may be shared by the rows that CopyDown fills.
struct Cell {
  Value value;
  std::shared_ptr<const Formula> formula;
  std::uint32_t style = 0;  // index into the book's StyleTable

  bool IsFormula() const { return formula != nullptr; }
  bool HasContent() const { return formula != nullptr || !value.IsEmpty(); }
};

}  // namespace gustline::wb
