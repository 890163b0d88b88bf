#include "core/workbook/address/CellAddress.h"

#include <utility>

#include "core/workbook/value/TextCompare.h"

namespace gustline::wb {
namespace {

// Reads "$B$87" or "c12" from the front of the text; advances past what it read.
std::optional<CellAddress> ReadCorner(std::string_view& text) {
  std::size_t at = 0;
  if (at < text.size() && text[at] == '$') ++at;
  int col = 0;
  std::size_t letters = 0;
  while (at < text.size()) {
    const char c = UpperAscii(text[at]);
    if (c < 'A' || c > 'Z') break;
    col = col * 26 + (c - 'A' + 1);
    if (col > kMaxCol) return std::nullopt;
    ++letters;
    ++at;
  }
  if (letters == 0) return std::nullopt;
  if (at < text.size() && text[at] == '$') ++at;
  int row = 0;
  std::size_t digits = 0;
  while (at < text.size() && text[at] >= '0' && text[at] <= '9') {
    row = row * 10 + (text[at] - '0');
    if (row > kMaxRow) return std::nullopt;
    ++digits;
    ++at;
  }
  if (digits == 0 || row < 1) return std::nullopt;
  text.remove_prefix(at);
  return CellAddress{row, col};
}

}  // namespace

std::string ColumnLetters(int col) {
  std::string letters;
  while (col > 0) {
    const int digit = (col - 1) % 26;
    letters.insert(letters.begin(), static_cast<char>('A' + digit));
    col = (col - 1) / 26;
  }
  return letters;
}

std::string CellRefText(int row, int col, bool absolute) {
  const char* dollar = absolute ? "$" : "";
  return dollar + ColumnLetters(col) + dollar + std::to_string(row);
}

std::string AreaText(const Area& area, bool absolute) {
  std::string text = CellRefText(area.firstRow, area.firstCol, absolute);
  if (area.firstRow == area.lastRow && area.firstCol == area.lastCol) return text;
  return text + ":" + CellRefText(area.lastRow, area.lastCol, absolute);
}

std::optional<Area> ParseAreaText(std::string_view text) {
  text = TrimBlanks(text);
  const auto first = ReadCorner(text);
  if (!first) return std::nullopt;
  CellAddress last = *first;
  if (!text.empty()) {
    if (text.front() != ':') return std::nullopt;
    text.remove_prefix(1);
    const auto second = ReadCorner(text);
    if (!second || !text.empty()) return std::nullopt;
    last = *second;
  }
  Area area{first->row, first->col, last.row, last.col};
  if (area.firstRow > area.lastRow) std::swap(area.firstRow, area.lastRow);
  if (area.firstCol > area.lastCol) std::swap(area.firstCol, area.lastCol);
  return area;
}

}  // namespace gustline::wb
