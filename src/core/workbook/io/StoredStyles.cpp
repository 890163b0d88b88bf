#include "core/workbook/io/StoredStyles.h"

#include <array>

#include "core/workbook/io/SheetFileCodes.h"

namespace gustline::wb {
namespace {

// The colours that indices 8 to 63 stand for when a book brings no palette of its own;
// 0 to 7 repeat the first eight.
constexpr std::array<std::uint32_t, 56> kPalette = {
    0x000000, 0xFFFFFF, 0xFF0000, 0x00FF00, 0x0000FF, 0xFFFF00, 0xFF00FF, 0x00FFFF,
    0x800000, 0x008000, 0x000080, 0x808000, 0x800080, 0x008080, 0xC0C0C0, 0x808080,
    0x8080FF, 0x802060, 0xFFFFC0, 0xA0E0E0, 0x600080, 0xFF8080, 0x0080C0, 0xC0C0FF,
    0x000080, 0xFF00FF, 0xFFFF00, 0x00FFFF, 0x800080, 0x800000, 0x008080, 0x0000FF,
    0x00CCFF, 0xCCFFFF, 0xCCFFCC, 0xFFFF99, 0x99CCFF, 0xFF99CC, 0xCC99FF, 0xFFCC99,
    0x3366FF, 0x33CCCC, 0x99CC00, 0xFFCC00, 0xFF9900, 0xFF6600, 0x666699, 0x969696,
    0x003366, 0x339966, 0x003300, 0x333300, 0x993300, 0x993366, 0x333399, 0x333333};

// The window's own colours and any index beyond the palette take the default.
std::uint32_t ColourOf(std::uint32_t index, std::uint32_t fallback) {
  if (index < 8) return kPalette[index];
  if (index < 64) return kPalette[index - 8];
  return fallback;
}

// Line styles are numbered as ours; the hairline, which we lack, shows thin.
Border BorderOf(std::uint32_t style, std::uint32_t colour) {
  if (style == 0) return {};
  return {style > 6 ? 1 : static_cast<int>(style), ColourOf(colour, 0x000000)};
}

}  // namespace

void StoredStyles::AddFont(RecordReader& in) {
  Font font;
  font.size = in.U16() / 20.0;
  font.italic = (in.U16() & 0x0002) != 0;
  font.color = ColourOf(in.U16(), 0x000000);
  font.bold = in.U16() >= 700;
  in.Skip(2);
  font.underline = in.U8() != 0;
  in.Skip(5);
  font.name = in.Text(in.U8());
  fonts_.push_back(std::move(font));
}

void StoredStyles::AddNumberFormat(RecordReader& in) {
  const std::uint16_t index = in.U16();
  numberFormats_[index] = in.Text(in.U8());
}

void StoredStyles::AddCellFormat(RecordReader& in) {
  CellFormat format;
  format.font = in.U16();
  format.numberFormat = in.U16();
  in.Skip(2);
  format.alignment = in.U8();
  in.Skip(1);
  format.fillAndBottom = in.U32();
  format.otherBorders = in.U32();
  cellFormats_.push_back(format);
}

CellStyle StoredStyles::StyleOf(std::size_t index) const {
  const CellFormat& format = cellFormats_[index];
  CellStyle style;
  // Font 4 is never written: the fonts after the fourth are counted from 5.
  const std::size_t font = format.font >= 4 ? format.font - 1u : format.font;
  if (font < fonts_.size()) style.font = fonts_[font];

  if (const auto found = numberFormats_.find(format.numberFormat); found != numberFormats_.end()) {
    style.numberFormat = found->second;
  } else {
    for (const auto& [text, builtIn] : kBuiltInFormats)
      if (builtIn == format.numberFormat) style.numberFormat = std::string(text);
  }

  switch (format.alignment & 0x07) {
    case 1:
      style.hAlign = HAlign::Left;
      break;
    case 2:
    case 6:  // centred across the selection
      style.hAlign = HAlign::Center;
      break;
    case 3:
      style.hAlign = HAlign::Right;
      break;
    default:
      break;
  }
  style.wrap = (format.alignment & 0x08) != 0;
  const int vertical = (format.alignment >> 4) & 0x07;
  style.vAlign = vertical == 0 ? VAlign::Top : vertical == 1 ? VAlign::Center : VAlign::Bottom;

  const std::uint32_t fill = format.fillAndBottom;
  if (((fill >> 16) & 0x3F) == 1) style.fill = ColourOf(fill & 0x7F, 0xFFFFFF);
  style.bottom = BorderOf((fill >> 22) & 0x07, (fill >> 25) & 0x7F);
  const std::uint32_t lines = format.otherBorders;
  style.top = BorderOf(lines & 0x07, (lines >> 9) & 0x7F);
  style.left = BorderOf((lines >> 3) & 0x07, (lines >> 16) & 0x7F);
  style.right = BorderOf((lines >> 6) & 0x07, (lines >> 23) & 0x7F);
  return style;
}

}  // namespace gustline::wb
