#include "core/workbook/value/CellStyle.h"

#include <algorithm>

namespace gustline::wb {

std::uint32_t StyleTable::Intern(const CellStyle& style) {
  const auto found = std::find(styles_.begin(), styles_.end(), style);
  if (found != styles_.end()) return static_cast<std::uint32_t>(found - styles_.begin());
  styles_.push_back(style);
  return static_cast<std::uint32_t>(styles_.size() - 1);
}

}  // namespace gustline::wb
