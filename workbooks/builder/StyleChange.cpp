#include "StyleChange.h"

#include <charconv>

namespace gustline::books {
namespace {

bool ReadFlag(const std::string& key, const std::optional<std::string>& value,
              const SourceLocation& where) {
  if (!value || *value == "1") return true;
  if (*value == "0") return false;
  throw SourceError(where, "'" + key + "' is 0 or 1, not '" + *value + "'");
}

int ReadLineStyle(const std::string& key, const std::string& value, const SourceLocation& where) {
  const auto number = ReadNumber(value);
  if (!number || *number != static_cast<int>(*number) || *number < 0 || *number > 6)
    throw SourceError(where, "'" + key + "' is a line style from 0 to 6, not '" + value + "'");
  return static_cast<int>(*number);
}

std::uint32_t ReadColour(const std::string& key, const std::string& value,
                         const SourceLocation& where) {
  std::uint32_t colour = 0;
  const char* end = value.data() + value.size();
  if (value.size() == 7 && value.front() == '#') {
    const auto [ptr, ec] = std::from_chars(value.data() + 1, end, colour, 16);
    if (ec == std::errc() && ptr == end) return colour;
  }
  throw SourceError(where, "'" + key + "' is a colour #RRGGBB, not '" + value + "'");
}

}  // namespace

StyleChange ReadStyleChange(const std::vector<std::string>& words, std::size_t first,
                            const SourceLocation& where) {
  if (first >= words.size()) throw SourceError(where, "a style line needs at least one key");
  StyleChange change;
  for (std::size_t i = first; i < words.size(); ++i) {
    const auto equals = words[i].find('=');
    const std::string key = words[i].substr(0, equals);
    std::optional<std::string> value;
    if (equals != std::string::npos) value = Unquote(words[i].substr(equals + 1));
    const auto need = [&]() -> const std::string& {
      if (!value) throw SourceError(where, "the style key '" + key + "' needs a value");
      return *value;
    };
    if (key == "bold") {
      change.bold = ReadFlag(key, value, where);
    } else if (key == "italic") {
      change.italic = ReadFlag(key, value, where);
    } else if (key == "underline") {
      change.underline = ReadFlag(key, value, where);
    } else if (key == "wrap") {
      change.wrap = ReadFlag(key, value, where);
    } else if (key == "font") {
      if (need().empty()) throw SourceError(where, "a font needs its name");
      change.font = *value;
    } else if (key == "size") {
      const auto size = ReadNumber(need());
      if (!size || *size <= 0) throw SourceError(where, "'" + *value + "' is not a font size");
      change.size = *size;
    } else if (key == "format") {
      change.format = need().empty() ? "General" : *value;
    } else if (key == "align") {
      const std::string& text = need();
      if (text == "general")
        change.align = wb::HAlign::General;
      else if (text == "left")
        change.align = wb::HAlign::Left;
      else if (text == "center")
        change.align = wb::HAlign::Center;
      else if (text == "right")
        change.align = wb::HAlign::Right;
      else
        throw SourceError(where, "align is left, center, right or general, not '" + text + "'");
    } else if (key == "valign") {
      const std::string& text = need();
      if (text == "top")
        change.valign = wb::VAlign::Top;
      else if (text == "center")
        change.valign = wb::VAlign::Center;
      else if (text == "bottom")
        change.valign = wb::VAlign::Bottom;
      else
        throw SourceError(where, "valign is top, center or bottom, not '" + text + "'");
    } else if (key == "color") {
      change.color = ReadColour(key, need(), where);
    } else if (key == "fill") {
      change.fill = ReadColour(key, need(), where);
    } else if (key == "border") {
      const int line = ReadLineStyle(key, need(), where);
      change.left = change.right = change.top = change.bottom = line;
    } else if (key == "left") {
      change.left = ReadLineStyle(key, need(), where);
    } else if (key == "right") {
      change.right = ReadLineStyle(key, need(), where);
    } else if (key == "top") {
      change.top = ReadLineStyle(key, need(), where);
    } else if (key == "bottom") {
      change.bottom = ReadLineStyle(key, need(), where);
    } else if (key == "box") {
      change.box = ReadLineStyle(key, need(), where);
    } else {
      throw SourceError(where, "unknown style key '" + key + "'");
    }
  }
  return change;
}

void ApplyStyleChange(const StyleChange& change, const wb::Area& range, int row, int col,
                      wb::CellStyle& style) {
  if (change.bold) style.font.bold = *change.bold;
  if (change.italic) style.font.italic = *change.italic;
  if (change.underline) style.font.underline = *change.underline;
  if (change.wrap) style.wrap = *change.wrap;
  if (change.font) style.font.name = *change.font;
  if (change.size) style.font.size = *change.size;
  if (change.format) style.numberFormat = *change.format;
  if (change.align) style.hAlign = *change.align;
  if (change.valign) style.vAlign = *change.valign;
  if (change.color) style.font.color = *change.color;
  if (change.fill) style.fill = *change.fill;
  if (change.left) style.left.style = *change.left;
  if (change.right) style.right.style = *change.right;
  if (change.top) style.top.style = *change.top;
  if (change.bottom) style.bottom.style = *change.bottom;
  if (!change.box) return;
  if (col == range.firstCol) style.left.style = *change.box;
  if (col == range.lastCol) style.right.style = *change.box;
  if (row == range.firstRow) style.top.style = *change.box;
  if (row == range.lastRow) style.bottom.style = *change.box;
}

}  // namespace gustline::books
