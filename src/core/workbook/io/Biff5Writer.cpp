#include "core/workbook/io/Biff5Writer.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <map>
#include <utility>
#include <vector>

#include "core/workbook/io/CompoundDocument.h"
#include "core/workbook/io/LittleEndian.h"
#include "core/workbook/io/SheetFileCodes.h"
#include "core/workbook/model/Workbook.h"
#include "core/workbook/value/CodePage1252.h"

namespace gustline::wb {
namespace {

namespace record {
constexpr std::uint32_t kEof = 0x000A;
constexpr std::uint32_t kFormat = 0x041E;
constexpr std::uint32_t kFont = 0x0031;
constexpr std::uint32_t kRow = 0x0208;
constexpr std::uint32_t kWindow1 = 0x003D;
constexpr std::uint32_t kCodePage = 0x0042;
constexpr std::uint32_t kColInfo = 0x007D;
constexpr std::uint32_t kBoundSheet = 0x0085;
constexpr std::uint32_t kXf = 0x00E0;
constexpr std::uint32_t kDimensions = 0x0200;
constexpr std::uint32_t kNumber = 0x0203;
constexpr std::uint32_t kLabel = 0x0204;
constexpr std::uint32_t kBoolErr = 0x0205;
constexpr std::uint32_t kWindow2 = 0x023E;
constexpr std::uint32_t kStyle = 0x0293;
constexpr std::uint32_t kBof = 0x0809;
}  // namespace record

constexpr std::uint32_t kBiff5Version = 0x0500;
constexpr std::uint32_t kGlobalsKind = 0x0005;
constexpr std::uint32_t kSheetKind = 0x0010;
constexpr std::uint32_t kCodePage1252 = 1252;
constexpr std::size_t kMaxLabel = 255;
constexpr std::size_t kMaxSheetName = 31;
constexpr std::size_t kMaxFontName = 31;
// 15 style formats come first, as Excel expects; cells use 15 and the ones after it.
constexpr std::uint32_t kStyleXfCount = 15;
constexpr std::uint32_t kFirstCustomFormat = 164;
// Four fonts stand for the default font; index 4 does not exist in the format.
constexpr std::uint32_t kDefaultFontCount = 4;
constexpr std::uint32_t kFirstCustomFont = 5;
constexpr std::uint32_t kBoldWeight = 700;
constexpr std::uint32_t kNormalWeight = 400;
constexpr std::uint32_t kBold = 0x0001;  // beside the weight, as readers look for it
constexpr std::uint32_t kItalic = 0x0002;
constexpr std::uint32_t kAutomaticColour = 0x7FFF;
constexpr std::uint32_t kDefaultRowHeight = 255;  // twips
constexpr std::uint32_t kHiddenRow = 0x0160;      // zero height, its own height, always set

void AppendRecord(std::string& out, std::uint32_t type, const std::string& data) {
  AppendU16(out, type);
  AppendU16(out, static_cast<std::uint32_t>(data.size()));
  out += data;
}

std::string Bof(std::uint32_t kind) {
  std::string data;
  AppendU16(data, kBiff5Version);
  AppendU16(data, kind);
  AppendU16(data, 0x0DBB);  // build
  AppendU16(data, 0x07CC);  // year
  return data;
}

// The fonts of the book's cells other than the default one, each with its index.
class FontTable {
 public:
  std::uint32_t IndexOf(const Font& font) {
    if (font == Font{}) return 0;
    auto found = std::find(fonts_.begin(), fonts_.end(), font);
    if (found == fonts_.end()) found = fonts_.insert(fonts_.end(), font);
    return kFirstCustomFont + static_cast<std::uint32_t>(found - fonts_.begin());
  }
  const std::vector<Font>& Custom() const { return fonts_; }

 private:
  std::vector<Font> fonts_;
};

// The number formats and fonts of the book's cells, each pair with its cell format (XF).
class FormatTable {
 public:
  struct CellFormat {
    std::uint32_t format = 0;
    std::uint32_t font = 0;
  };

  std::uint32_t XfOf(const CellStyle& style) {
    const std::uint32_t font = fonts_.IndexOf(style.font);
    const auto key = std::make_pair(style.numberFormat, font);
    const auto found = xfs_.find(key);
    if (found != xfs_.end()) return found->second;
    const auto xf = kStyleXfCount + static_cast<std::uint32_t>(formatOfXf_.size());
    formatOfXf_.push_back({FormatIndex(style.numberFormat), font});
    xfs_.emplace(key, xf);
    return xf;
  }

  const std::vector<std::pair<std::uint32_t, std::string>>& Custom() const { return custom_; }
  const std::vector<CellFormat>& FormatOfXf() const { return formatOfXf_; }
  const FontTable& Fonts() const { return fonts_; }

 private:
  std::uint32_t FormatIndex(const std::string& numberFormat) {
    const auto builtIn =
        std::find_if(kBuiltInFormats.begin(), kBuiltInFormats.end(),
                     [&](const auto& entry) { return entry.first == numberFormat; });
    if (builtIn != kBuiltInFormats.end()) return builtIn->second;
    const auto custom = std::find_if(custom_.begin(), custom_.end(), [&](const auto& entry) {
      return entry.second == numberFormat;
    });
    if (custom != custom_.end()) return custom->first;
    const std::uint32_t index = kFirstCustomFormat + static_cast<std::uint32_t>(custom_.size());
    custom_.emplace_back(index, numberFormat);
    return index;
  }

  FontTable fonts_;
  std::map<std::pair<std::string, std::uint32_t>, std::uint32_t> xfs_;
  std::vector<std::pair<std::uint32_t, std::string>> custom_;
  std::vector<CellFormat> formatOfXf_;
};

std::string Xf(FormatTable::CellFormat cell, bool style) {
  std::string data;
  AppendU16(data, cell.font);
  AppendU16(data, cell.format);
  AppendU16(data, style ? 0xFFF5 : 0x0001);  // locked; a style has no parent
  AppendU8(data, 0x20);                      // bottom aligned
  // Attributes a style leaves to its cells; in a cell format, those it sets itself: the
  // number format and the font.
  AppendU8(data, style ? 0xF4 : (cell.format == 0 ? 0x00 : 0x04) | (cell.font == 0 ? 0x00 : 0x08));
  AppendU32(data, 0x000020C0);  // the window's colours, no pattern, no bottom line
  AppendU32(data, 0);
  return data;
}

// The colours of the format's palette by their index; any other is the window's text colour.
std::uint32_t ColourIndex(std::uint32_t rgb) {
  static constexpr std::uint32_t kFirstColour = 9;
  static constexpr std::array<std::uint32_t, 7> kPalette = {0xFFFFFF, 0xFF0000, 0x00FF00, 0x0000FF,
                                                            0xFFFF00, 0xFF00FF, 0x00FFFF};
  const auto found = std::find(kPalette.begin(), kPalette.end(), rgb);
  if (found == kPalette.end()) return kAutomaticColour;
  return kFirstColour + static_cast<std::uint32_t>(found - kPalette.begin());
}

std::string ShortText(std::string_view text, std::size_t limit) {
  std::string bytes = ToCodePage1252(text);
  if (bytes.size() > limit) bytes.resize(limit);
  return bytes;
}

std::string FontRecord(const Font& font) {
  const std::string name = ShortText(font.name, kMaxFontName);
  std::string data;
  AppendU16(data, static_cast<std::uint32_t>(std::lround(font.size * 20)));
  AppendU16(data, (font.bold ? kBold : 0) | (font.italic ? kItalic : 0));
  AppendU16(data, ColourIndex(font.color));
  AppendU16(data, font.bold ? kBoldWeight : kNormalWeight);
  AppendU16(data, 0);
  AppendU8(data, font.underline ? 1 : 0);
  AppendU8(data, 0);
  AppendU8(data, 0);
  AppendU8(data, 0);
  AppendU8(data, static_cast<std::uint32_t>(name.size()));
  data += name;
  return data;
}

std::string CellHead(int row, int col, std::uint32_t xf) {
  std::string data;
  AppendU16(data, static_cast<std::uint32_t>(row - 1));
  AppendU16(data, static_cast<std::uint32_t>(col - 1));
  AppendU16(data, xf);
  return data;
}

// The records of one cell's value; nothing for an empty cell or an empty text.
void AppendCell(std::string& out, int row, int col, const Value& value, std::uint32_t xf) {
  std::string data = CellHead(row, col, xf);
  switch (value.GetKind()) {
    case Value::Kind::Empty:
      return;
    case Value::Kind::Number:
      AppendF64(data, value.AsNumber());
      AppendRecord(out, record::kNumber, data);
      return;
    case Value::Kind::Text: {
      if (value.AsText().empty()) return;
      const std::string text = ShortText(value.AsText(), kMaxLabel);
      AppendU16(data, static_cast<std::uint32_t>(text.size()));
      data += text;
      AppendRecord(out, record::kLabel, data);
      return;
    }
    case Value::Kind::Boolean:
      AppendU8(data, value.AsBoolean() ? 1 : 0);
      AppendU8(data, 0);
      AppendRecord(out, record::kBoolErr, data);
      return;
    case Value::Kind::Error:
      AppendU8(data, ErrorByte(value.AsError()));
      AppendU8(data, 1);
      AppendRecord(out, record::kBoolErr, data);
      return;
  }
}

std::string SheetStream(const Workbook& book, const Sheet& sheet, bool first,
                        FormatTable& formats) {
  std::string cells;
  int firstRow = 0, lastRow = 0, firstCol = 0, lastCol = 0;
  sheet.ForEachCell([&](int row, int col, const Cell& cell) {
    const std::size_t before = cells.size();
    AppendCell(cells, row, col, cell.value, formats.XfOf(book.Styles().Get(cell.style)));
    if (cells.size() == before) return;
    if (firstRow == 0 || row < firstRow) firstRow = row;
    if (firstCol == 0 || col < firstCol) firstCol = col;
    lastRow = std::max(lastRow, row);
    lastCol = std::max(lastCol, col);
  });

  std::string out;
  AppendRecord(out, record::kBof, Bof(kSheetKind));
  for (const auto& [col, width] : sheet.ColumnWidths()) {
    std::string data;
    AppendU16(data, static_cast<std::uint32_t>(col - 1));
    AppendU16(data, static_cast<std::uint32_t>(col - 1));
    AppendU16(data, static_cast<std::uint32_t>(std::lround(std::clamp(width, 0.0, 255.0) * 256)));
    AppendU16(data, kStyleXfCount);
    AppendU16(data, 0);
    AppendU16(data, 0);
    AppendRecord(out, record::kColInfo, data);
  }
  std::string dimensions;
  AppendU16(dimensions, static_cast<std::uint32_t>(std::max(firstRow - 1, 0)));
  AppendU16(dimensions, static_cast<std::uint32_t>(lastRow));
  AppendU16(dimensions, static_cast<std::uint32_t>(std::max(firstCol - 1, 0)));
  AppendU16(dimensions, static_cast<std::uint32_t>(lastCol));
  AppendU16(dimensions, 0);
  AppendRecord(out, record::kDimensions, dimensions);
  for (const int row : sheet.HiddenRows()) {
    std::string data;
    AppendU16(data, static_cast<std::uint32_t>(row - 1));
    AppendU16(data, 0);
    AppendU16(data, 0);
    AppendU16(data, kDefaultRowHeight);
    AppendU16(data, 0);
    AppendU16(data, 0);
    AppendU16(data, kHiddenRow);
    AppendU16(data, kStyleXfCount);
    AppendRecord(out, record::kRow, data);
  }
  out += cells;
  std::string window;
  // Grid lines, headings, zeros, outline symbols; the first sheet selected and shown.
  AppendU16(window, first ? 0x06B6 : 0x00B6);
  AppendU16(window, 0);
  AppendU16(window, 0);
  AppendU32(window, 0);
  AppendRecord(out, record::kWindow2, window);
  AppendRecord(out, record::kEof, {});
  return out;
}

}  // namespace

std::string Biff5Stream(Workbook& book) {
  book.EnsureCalculated();
  FormatTable formats;
  formats.XfOf(CellStyle{});
  std::vector<std::string> sheets;
  for (int s = 1; s <= book.SheetCount(); ++s)
    sheets.push_back(SheetStream(book, book.GetSheet(s), s == 1, formats));

  std::string globals;
  AppendRecord(globals, record::kBof, Bof(kGlobalsKind));
  std::string data;
  AppendU16(data, kCodePage1252);
  AppendRecord(globals, record::kCodePage, data);
  data.clear();
  for (std::uint32_t field : {0u, 0u, 0x3000u, 0x2000u, 0x0038u, 0u, 0u, 1u, 0x0258u})
    AppendU16(data, field);
  AppendRecord(globals, record::kWindow1, data);
  for (std::uint32_t i = 0; i < kDefaultFontCount; ++i)
    AppendRecord(globals, record::kFont, FontRecord(Font{}));
  for (const Font& font : formats.Fonts().Custom())
    AppendRecord(globals, record::kFont, FontRecord(font));
  for (const auto& [index, text] : formats.Custom()) {
    data.clear();
    AppendU16(data, index);
    const std::string bytes = ShortText(text, kMaxLabel);
    AppendU8(data, static_cast<std::uint32_t>(bytes.size()));
    data += bytes;
    AppendRecord(globals, record::kFormat, data);
  }
  for (std::uint32_t i = 0; i < kStyleXfCount; ++i)
    AppendRecord(globals, record::kXf, Xf({}, true));
  for (const FormatTable::CellFormat& cell : formats.FormatOfXf())
    AppendRecord(globals, record::kXf, Xf(cell, false));
  data.clear();
  AppendU16(data, 0x8000);  // built-in style "Normal" on format 0
  AppendU8(data, 0);
  AppendU8(data, 0xFF);
  AppendRecord(globals, record::kStyle, data);

  std::vector<std::size_t> offsetFields;
  for (int s = 1; s <= book.SheetCount(); ++s) {
    const std::string name = ShortText(book.SheetName(s), kMaxSheetName);
    data.clear();
    AppendU32(data, 0);
    AppendU8(data, 0);  // visible
    AppendU8(data, 0);  // worksheet
    AppendU8(data, static_cast<std::uint32_t>(name.size()));
    data += name;
    offsetFields.push_back(globals.size() + 4);
    AppendRecord(globals, record::kBoundSheet, data);
  }
  AppendRecord(globals, record::kEof, {});

  std::size_t offset = globals.size();
  for (std::size_t i = 0; i < sheets.size(); ++i) {
    PatchU32(globals, offsetFields[i], static_cast<std::uint32_t>(offset));
    offset += sheets[i].size();
  }
  std::string stream = std::move(globals);
  for (const std::string& sheet : sheets) stream += sheet;
  return stream;
}

void WriteBiff5(Workbook& book, std::ostream& out) {
  WriteCompoundDocument(out, "Book", Biff5Stream(book));
}

}  // namespace gustline::wb
