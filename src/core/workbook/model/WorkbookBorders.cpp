#include <algorithm>
#include <string>

#include "core/workbook/address/SheetRanges.h"
#include "core/workbook/model/Workbook.h"
#include "core/workbook/value/FacilityError.h"

namespace gustline::wb {
namespace {

constexpr int kMaxLineStyle = 6;
constexpr std::uint32_t kShadeFill = 0xC0C0C0;  // the grey of a shaded selection
constexpr std::uint32_t kNoFill = 0xFFFFFF;

void CheckLineStyle(int style) {
  if (style < -1 || style > kMaxLineStyle)
    throw FacilityError(errc::kBadArgument,
                        "Line style " + std::to_string(style) + " is none of -1 to 6");
}

void CheckColor(std::int64_t color) {
  if (color < -1 || color > 0xFFFFFF)
    throw FacilityError(errc::kBadArgument,
                        "Colour " + std::to_string(color) + " is no 0xRRGGBB value");
}

void Apply(Border& border, int style, std::int64_t color) {
  if (style != -1) border.style = style;
  if (color != -1) border.color = static_cast<std::uint32_t>(color);
}

Area Normalised(const Area& area) {
  return Area{std::min(area.firstRow, area.lastRow), std::min(area.firstCol, area.lastCol),
              std::max(area.firstRow, area.lastRow), std::max(area.firstCol, area.lastCol)};
}

}  // namespace

BorderInfo Workbook::GetBorder() const {
  const Sheet& sheet = Active();
  const auto styleAt = [&](int row, int col) -> const CellStyle& {
    const Cell* cell = sheet.Find(row, col);
    return styles_.Get(cell == nullptr ? 0 : cell->style);
  };
  const Area area = Normalised(sheet.selection);
  const CellStyle& corner = styleAt(sheet.selection.firstRow, sheet.selection.firstCol);
  BorderInfo info;
  info.left = corner.left.style;
  info.right = corner.right.style;
  info.top = corner.top.style;
  info.bottom = corner.bottom.style;
  info.leftColor = corner.left.color;
  info.rightColor = corner.right.color;
  info.topColor = corner.top.color;
  info.bottomColor = corner.bottom.color;

  const int common = styleAt(area.firstRow, area.firstCol).top.style;
  bool same = true;
  for (int c = area.firstCol; same && c <= area.lastCol; ++c)
    same = styleAt(area.firstRow, c).top.style == common &&
           styleAt(area.lastRow, c).bottom.style == common;
  for (int r = area.firstRow; same && r <= area.lastRow; ++r)
    same = styleAt(r, area.firstCol).left.style == common &&
           styleAt(r, area.lastCol).right.style == common;
  info.outline = same ? common : 0;
  return info;
}

void Workbook::SetBorder(int outline, int left, int right, int top, int bottom, int shade,
                         std::int64_t outlineColor, std::int64_t leftColor, std::int64_t rightColor,
                         std::int64_t topColor, std::int64_t bottomColor) {
  for (const int style : {outline, left, right, top, bottom}) CheckLineStyle(style);
  for (const std::int64_t color : {outlineColor, leftColor, rightColor, topColor, bottomColor})
    CheckColor(color);
  if (shade < -1 || shade > 1)
    throw FacilityError(errc::kBadArgument, "Shade is -1, 0 or 1, not " + std::to_string(shade));

  Sheet& sheet = Active();
  const Area area = WalkedArea(sheet, sheet.selection);
  for (int r = area.firstRow; r <= area.lastRow; ++r)
    for (int c = area.firstCol; c <= area.lastCol; ++c) {
      Cell& cell = sheet.At(r, c);
      CellStyle style = styles_.Get(cell.style);
      Apply(style.left, left, leftColor);
      Apply(style.right, right, rightColor);
      Apply(style.top, top, topColor);
      Apply(style.bottom, bottom, bottomColor);
      // The outline goes round the selection's edge, over the lines of its cells.
      if (c == area.firstCol) Apply(style.left, outline, outlineColor);
      if (c == area.lastCol) Apply(style.right, outline, outlineColor);
      if (r == area.firstRow) Apply(style.top, outline, outlineColor);
      if (r == area.lastRow) Apply(style.bottom, outline, outlineColor);
      if (shade != -1) style.fill = shade == 1 ? kShadeFill : kNoFill;
      cell.style = styles_.Intern(style);
    }
}

}  // namespace gustline::wb
