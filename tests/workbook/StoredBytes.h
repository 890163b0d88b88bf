#pragma once

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include "core/workbook/io/LittleEndian.h"

// Stored record streams built byte by byte for the tests: records, cells, formula tokens
// and whole books. Rows and columns are 0-based, as in the file.
namespace gustline::wb::stored {

inline std::string U16(std::uint32_t value) {
  std::string out;
  AppendU16(out, value);
  return out;
}
inline std::string U32(std::uint32_t value) {
  std::string out;
  AppendU32(out, value);
  return out;
}
inline std::string F64(double value) {
  std::string out;
  AppendF64(out, value);
  return out;
}
inline std::string Byte(std::uint32_t value) {
  return std::string(1, static_cast<char>(value));
}
inline std::string Zeros(std::size_t count) {
  return std::string(count, '\0');
}

inline std::string Fixed(std::uint8_t type, const std::string& data) {
  return Byte(type) + data;
}
inline std::string Sized(std::uint8_t type, const std::string& data) {
  const std::string length = data.size() < 0xFF
                                 ? Byte(static_cast<std::uint32_t>(data.size()))
                                 : Byte(0xFF) + U16(static_cast<std::uint32_t>(data.size()));
  return Byte(type) + length + data;
}
inline std::string Short(const std::string& text) {
  return Byte(static_cast<std::uint32_t>(text.size())) + text;
}

inline std::string Begin(std::uint32_t kind) {
  return Fixed(0x09, U16(0x0500) + U16(kind));
}
inline std::string End() {
  return Fixed(0x0A, "");
}
inline std::string Head(int row, int col, int format = 0) {
  return U16(row) + U16(col) + U16(format);
}
inline std::string Number(int row, int col, double value, int format = 0) {
  return Fixed(0x03, Head(row, col, format) + F64(value));
}
inline std::string Text(int row, int col, const std::string& text) {
  return Sized(0x04, Head(row, col) + U16(static_cast<std::uint32_t>(text.size())) + text);
}
inline std::string FormulaCell(int row, int col, const std::string& tokens,
                               const std::string& cached = F64(0)) {
  return Sized(0x06, Head(row, col) + cached + U16(0) + Zeros(4) +
                         U16(static_cast<std::uint32_t>(tokens.size())) + tokens);
}
// A cached result that is no number: 0 text, 1 boolean, 2 error, 3 empty text.
inline std::string Cached(std::uint32_t kind, std::uint32_t value = 0) {
  return Byte(kind) + Byte(0) + Byte(value) + Zeros(3) + Byte(0xFF) + Byte(0xFF);
}

inline std::string FontRecord(const std::string& name, int height = 200, int weight = 400) {
  return Sized(0x31, U16(height) + U16(0) + U16(0x7FFF) + U16(weight) + Zeros(8) + Short(name));
}
inline std::string CellFormat(int numberFormat = 0, std::uint32_t alignment = 0x20,
                              std::uint32_t fill = 0, std::uint32_t lines = 0) {
  return Sized(0xE0, U16(0) + U16(numberFormat) + U16(1) + Byte(alignment) + Byte(0) + U32(fill) +
                         U32(lines) + Zeros(4));
}
inline std::string SheetEntry(const std::string& name) {
  return Sized(0x85, U16(0) + Short(name));
}
inline std::string Link(const std::string& text) {
  return Sized(0x17, Byte(static_cast<std::uint32_t>(text.size() + 1)) + Byte(3) + text);
}
inline std::string LinkedName(const std::string& name) {
  return Sized(0x23, Zeros(6) + Short(name) + F64(0));
}
inline std::string NameDef(const std::string& name, const std::string& tokens, int sheet = 0,
                           std::uint32_t options = 0) {
  return Sized(0x18, U16(options) + Byte(0) + Byte(static_cast<std::uint32_t>(name.size())) +
                         U16(static_cast<std::uint32_t>(tokens.size())) + U16(0) + U16(sheet) +
                         Zeros(4) + name + tokens);
}

// Formula tokens.
inline std::string Ref(int row, int col, bool relative = true) {
  return Byte(0x44) + U16(row | (relative ? 0xC000 : 0)) + Byte(col);
}
inline std::string AreaToken(int row1, int col1, int row2, int col2) {
  return Byte(0x25) + U16(row1) + U16(row2) + Byte(col1) + Byte(col2);
}
inline std::string Ref3d(int link, int sheet, int row, int col) {
  return Byte(0x5A) + U16(static_cast<std::uint32_t>(link)) + Zeros(8) + U16(sheet) + U16(sheet) +
         U16(row | 0xC000) + Byte(col);
}
inline std::string Int(int value) {
  return Byte(0x1E) + U16(value);
}
inline std::string Num(double value) {
  return Byte(0x1F) + F64(value);
}
inline std::string Str(const std::string& text) {
  return Byte(0x17) + Short(text);
}
inline std::string Call(int function, int count) {
  return Byte(0x42) + Byte(count) + U16(function);
}
inline std::string NameToken(int position) {
  return Byte(0x43) + U16(position) + Zeros(12);
}
inline std::string LinkedNameToken(int link, int position) {
  return Byte(0x59) + U16(static_cast<std::uint32_t>(link)) + Zeros(8) + U16(position) + Zeros(12);
}

// A book: globals with the records given, a font and two cell formats (the second of
// format "0.00"), then each sheet's records between its begin and end.
inline std::string Book(const std::string& globals,
                        const std::vector<std::pair<std::string, std::string>>& sheets) {
  std::string out = Begin(0x05) + globals + FontRecord("Arial") + CellFormat() + CellFormat(2);
  for (const auto& sheet : sheets) out += SheetEntry(sheet.first);
  out += End();
  for (const auto& sheet : sheets) out += Begin(0x10) + sheet.second + End();
  return out;
}

inline std::string OneSheet(const std::string& records) {
  return Book("", {{"Sheet1", records}});
}

}  // namespace gustline::wb::stored
