// Reads arbitrary bytes as a drawing. Every input gives an outline or the refusal; an
// outline's boundaries each close on their first point and end in an empty row.
#include <cstdint>
#include <cstdlib>
#include <string_view>

#include "geometry/DxfReader.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view text(reinterpret_cast<const char*>(data), size);
  const auto outline = gustline::geometry::ReadDxfText(text);
  if (outline.message) {
    if (!outline.rows.empty()) std::abort();
    return 0;
  }
  if (outline.rows.empty() || !outline.rows.back().first.empty()) std::abort();
  std::size_t first = 0;
  for (std::size_t k = 0; k < outline.rows.size(); ++k) {
    if (!outline.rows[k].first.empty()) continue;
    if (k < first + 2 || outline.rows[k - 1] != outline.rows[first]) std::abort();
    first = k + 1;
  }
  return 0;
}
