#include <cmath>
#include <cstdio>
#include <string>

#include "core/workbook/address/CellAddress.h"
#include "core/workbook/io/NativeFormat.h"
#include "core/workbook/model/Workbook.h"

namespace gustline::wb {
namespace {

// The length of the well-formed UTF-8 sequence at `at`, or 0 when the byte starts none.
std::size_t Utf8Length(std::string_view text, std::size_t at) {
  const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(text[i]); };
  const unsigned char lead = byte(at);
  std::size_t length = 0;
  if (lead >= 0xC2 && lead <= 0xDF)
    length = 2;
  else if (lead >= 0xE0 && lead <= 0xEF)
    length = 3;
  else if (lead >= 0xF0 && lead <= 0xF4)
    length = 4;
  if (length == 0 || at + length > text.size()) return 0;
  for (std::size_t i = at + 1; i < at + length; ++i)
    if ((byte(i) & 0xC0) != 0x80) return 0;
  return length;
}

// Control bytes, backslashes and bytes that are no UTF-8 become escapes, so that a line
// stays one line and any byte sequence reads back as it was.
std::string Escaped(std::string_view text, bool inQuotes) {
  std::string out;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const auto c = static_cast<unsigned char>(text[i]);
    if (c == '\\') {
      out += "\\\\";
    } else if (c == '"' && inQuotes) {
      out += "\\\"";
    } else if (c == '\n') {
      out += "\\n";
    } else if (c == '\r') {
      out += "\\r";
    } else if (c == '\t') {
      out += "\\t";
    } else if (c >= 0x20 && c < 0x7F) {
      out += static_cast<char>(c);
    } else if (const std::size_t length = c >= 0x80 ? Utf8Length(text, i) : 0; length > 0) {
      out.append(text.substr(i, length));
      i += length - 1;
    } else {
      char hex[8];
      std::snprintf(hex, sizeof hex, "\\x%02X", c);
      out += hex;
    }
  }
  return out;
}

std::string Quoted(std::string_view text) {
  return "\"" + Escaped(text, true) + "\"";
}

std::string NumberText(double number) {
  if (std::isnan(number)) return "nan";
  if (std::isinf(number)) return number < 0 ? "-inf" : "inf";
  return FormatShortest(number);
}

std::string Flag(bool on) {
  return on ? "1" : "0";
}

std::string Colour(std::uint32_t colour) {
  char hex[16];
  std::snprintf(hex, sizeof hex, "%06X", static_cast<unsigned>(colour));
  return hex;
}

std::string ValueToken(const Value& value) {
  switch (value.GetKind()) {
    case Value::Kind::Number:
      return NumberText(value.AsNumber());
    case Value::Kind::Text:
      return Quoted(value.AsText());
    case Value::Kind::Boolean:
      return value.AsBoolean() ? "TRUE" : "FALSE";
    case Value::Kind::Error:
      return std::string(ErrorText(value.AsError()));
    case Value::Kind::Empty:
      break;
  }
  return "empty";
}

const char* HAlignName(HAlign align) {
  switch (align) {
    case HAlign::Left:
      return "left";
    case HAlign::Center:
      return "center";
    case HAlign::Right:
      return "right";
    case HAlign::General:
      break;
  }
  return "general";
}

const char* VAlignName(VAlign align) {
  switch (align) {
    case VAlign::Center:
      return "center";
    case VAlign::Top:
      return "top";
    case VAlign::Bottom:
      break;
  }
  return "bottom";
}

std::string BorderText(const Border& border) {
  return std::to_string(border.style) + "/" + Colour(border.color);
}

void WriteStyle(std::ostream& out, std::size_t number, const CellStyle& style) {
  out << "style " << number << " format=" << Quoted(style.numberFormat)
      << " font=" << Quoted(style.font.name) << " size=" << NumberText(style.font.size)
      << " bold=" << Flag(style.font.bold) << " italic=" << Flag(style.font.italic)
      << " underline=" << Flag(style.font.underline) << " color=" << Colour(style.font.color)
      << " align=" << HAlignName(style.hAlign) << " valign=" << VAlignName(style.vAlign)
      << " wrap=" << Flag(style.wrap) << " left=" << BorderText(style.left)
      << " right=" << BorderText(style.right) << " top=" << BorderText(style.top)
      << " bottom=" << BorderText(style.bottom) << " fill=" << Colour(style.fill) << "\n";
}

// "5-7 12": runs of consecutive rows.
void WriteHiddenRows(std::ostream& out, const std::vector<int>& rows) {
  if (rows.empty()) return;
  out << "hidden-rows";
  for (std::size_t i = 0; i < rows.size();) {
    std::size_t j = i;
    while (j + 1 < rows.size() && rows[j + 1] == rows[j] + 1) ++j;
    out << " " << rows[i];
    if (j > i) out << "-" << rows[j];
    i = j + 1;
  }
  out << "\n";
}

void WritePrint(std::ostream& out, const PrintSetup& print) {
  out << "print header=" << Quoted(print.header) << " footer=" << Quoted(print.footer)
      << " left=" << NumberText(print.leftMargin) << " right=" << NumberText(print.rightMargin)
      << " top=" << NumberText(print.topMargin) << " bottom=" << NumberText(print.bottomMargin)
      << " grid=" << Flag(print.gridLines) << " headings=" << Flag(print.rowHeading)
      << " hcenter=" << Flag(print.hCenter) << " vcenter=" << Flag(print.vCenter)
      << " nocolor=" << Flag(print.noColor) << " lefttoright=" << Flag(print.leftToRight)
      << " landscape=" << Flag(print.landscape) << " scale=" << NumberText(print.scale)
      << " fit=" << Flag(print.fitToPages) << " wide=" << print.pagesWide
      << " tall=" << print.pagesTall << " area=" << Quoted(print.printArea) << "\n";
}

void WriteDisplay(std::ostream& out, const DisplaySwitches& display) {
  out << "display tabs=" << Flag(display.showTabs) << " rowheadings=" << Flag(display.rowHeadings)
      << " colheadings=" << Flag(display.colHeadings) << " grid=" << Flag(display.gridLines)
      << " celledit=" << Flag(display.allowInCellEditing)
      << " fill=" << Flag(display.allowFillRange) << " move=" << Flag(display.allowMoveRange)
      << " delete=" << Flag(display.allowDelete) << " resize=" << Flag(display.allowResize) << "\n";
}

void WriteObject(std::ostream& out, const SheetObject& object) {
  out << "object id=" << object.id << " type=" << object.type << " name=" << Quoted(object.name)
      << " x1=" << NumberText(object.x1) << " y1=" << NumberText(object.y1)
      << " x2=" << NumberText(object.x2) << " y2=" << NumberText(object.y2)
      << " cell=" << Quoted(object.linkedCell) << " value=" << NumberText(object.value)
      << " selected=" << Flag(object.selected) << " data=" << Quoted(object.data) << "\n";
}

// "B17 s3 = 90" for a constant, "D15 s2 60 := [WindData]Sheet1!Height" for a formula with
// its cached result, "B18 s3" for a blank that only carries a style.
void WriteCell(std::ostream& out, const CellRecord& cell) {
  out << CellRefText(cell.address.row, cell.address.col, false);
  if (cell.style != 0) out << " s" << cell.style;
  if (cell.formula)
    out << " " << ValueToken(cell.value) << " := " << Escaped(*cell.formula, false);
  else if (!cell.value.IsEmpty())
    out << " = " << ValueToken(cell.value);
  out << "\n";
}

void WriteSheet(std::ostream& out, const SheetRecord& sheet) {
  out << "sheet " << Quoted(sheet.name) << "\n";
  out << "default-width " << NumberText(sheet.defaultWidth) << "\n";
  for (const auto& [col, width] : sheet.columnWidths)
    out << "column " << ColumnLetters(col) << " " << NumberText(width) << "\n";
  WriteHiddenRows(out, sheet.hiddenRows);
  WritePrint(out, sheet.print);
  WriteDisplay(out, sheet.display);
  out << "view selection=" << AreaText(sheet.selection, true)
      << " active=" << CellRefText(sheet.active.row, sheet.active.col, false)
      << " top=" << sheet.topRow << " left=" << sheet.leftCol << " maxrow=" << sheet.maxRow
      << " selected=" << Flag(sheet.selected) << "\n";
  for (const SheetObject& object : sheet.objects) WriteObject(out, object);
  for (const CellRecord& cell : sheet.cells) WriteCell(out, cell);
}

}  // namespace

void SerializeNative(const WorkbookDocument& document, std::ostream& out) {
  out << kNativeMagic << " " << kNativeVersion << "\n";
  out << "book " << Quoted(document.bookName) << "\n";
  out << "title " << Quoted(document.title) << "\n";
  out << "calc auto=" << Flag(document.autoRecalc) << " iteration=" << Flag(document.iterationOn)
      << " count=" << document.maxIterations << " change=" << NumberText(document.maxChange)
      << "\n";
  out << "active-sheet " << document.activeSheet << "\n";
  for (const NameRecord& name : document.names)
    out << "name " << Quoted(name.name) << " := " << Escaped(name.refersTo, false) << "\n";
  for (std::size_t i = 0; i < document.styles.size(); ++i)
    WriteStyle(out, i + 1, document.styles[i]);
  for (const SheetRecord& sheet : document.sheets) WriteSheet(out, sheet);
  out << "end\n";
}

void WriteNative(Workbook& book, std::ostream& out) {
  book.EnsureCalculated();
  SerializeNative(CaptureDocument(book), out);
}

}  // namespace gustline::wb
