#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace gustline::wb {

enum class HAlign : std::uint8_t { General, Left, Center, Right };
enum class VAlign : std::uint8_t { Bottom, Center, Top };

// Line styles of a border as the facility numbers them: 0 none, 1 thin, 2 medium,
// 3 dashed, 4 dotted, 5 thick, 6 double.
struct Border {
  int style = 0;
  std::uint32_t color = 0x000000;  // 0xRRGGBB
  bool operator==(const Border&) const = default;
};

struct Font {
  std::string name = "Arial";
  double size = 10;
  bool bold = false;
  bool italic = false;
  bool underline = false;
  std::uint32_t color = 0x000000;
  bool operator==(const Font&) const = default;
};

// Everything about how a cell shows, apart from its value.
struct CellStyle {
  std::string numberFormat = "General";
  Font font;
  HAlign hAlign = HAlign::General;
  VAlign vAlign = VAlign::Bottom;
  bool wrap = false;
  Border left, right, top, bottom;
  std::uint32_t fill = 0xFFFFFF;
  bool operator==(const CellStyle&) const = default;
};

// The styles of a workbook, each held once; a cell keeps an index. Index 0 is the default.
class StyleTable {
 public:
  StyleTable() : styles_(1) {}
  std::uint32_t Intern(const CellStyle& style);
  const CellStyle& Get(std::uint32_t index) const { return styles_[index]; }
  std::size_t Size() const { return styles_.size(); }
  void Clear() { styles_.assign(1, CellStyle{}); }

 private:
  std::vector<CellStyle> styles_;
};

}  // namespace gustline::wb
