#pragma once

#include <algorithm>
#include <string_view>
#include <vector>

namespace gustline::wb {

// The lines of a text as the clipboard carries them: split at line feeds, a carriage return
// before one dropped; a final line feed ends the last line rather than starting an empty one.
inline std::vector<std::string_view> TextLines(std::string_view text) {
  std::vector<std::string_view> lines;
  std::size_t pos = 0;
  while (pos < text.size()) {
    const std::size_t lineEnd = std::min(text.find('\n', pos), text.size());
    std::string_view line = text.substr(pos, lineEnd - pos);
    if (!line.empty() && line.back() == '\r') line.remove_suffix(1);
    lines.push_back(line);
    pos = lineEnd + 1;
  }
  return lines;
}

}  // namespace gustline::wb
