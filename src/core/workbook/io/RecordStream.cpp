#include "core/workbook/io/RecordStream.h"

#include <array>
#include <bit>
#include <cstdio>

#include "core/workbook/value/CodePage1252.h"
#include "core/workbook/value/FacilityError.h"

namespace gustline::wb {
namespace {

// What the stream holds at a type: its name for messages and the length of its data, or
// kWithLength when a length field follows the type byte.
constexpr int kWithLength = -1;
constexpr int kUnknown = -2;

struct RecordKind {
  std::string_view name;
  int length = kUnknown;
};

constexpr std::array<RecordKind, 256> MakeKinds() {
  std::array<RecordKind, 256> kinds{};
  // The writing program keeps the types from 0xE0 on for itself; they are passed over.
  for (std::size_t type = 0xE0; type < 0x100; ++type) kinds[type] = {"private record", kWithLength};
  const auto fixed = [&](std::size_t type, std::string_view name, int length) {
    kinds[type] = {name, length};
  };
  fixed(0x00, "dimensions", 10);
  fixed(0x01, "blank cell", 6);
  fixed(0x03, "number cell", 14);
  fixed(0x05, "boolean or error cell", 8);
  fixed(0x08, "row", 16);
  fixed(0x09, "begin", 4);
  fixed(0x0A, "end", 0);
  fixed(0x0C, "iteration count", 2);
  fixed(0x0D, "calculation mode", 2);
  fixed(0x0E, "precision", 2);
  fixed(0x10, "iteration change", 8);
  fixed(0x11, "iteration", 2);
  fixed(0x16, "link count", 2);
  fixed(0x25, "default row height", 4);
  fixed(0x26, "left margin", 8);
  fixed(0x27, "right margin", 8);
  fixed(0x28, "top margin", 8);
  fixed(0x29, "bottom margin", 8);
  fixed(0x2A, "print headings", 2);
  fixed(0x2B, "print grid lines", 2);
  fixed(0x5F, "recalculate before save", 2);
  fixed(0x7D, "column information", 12);
  fixed(0x7E, "packed number cell", 10);
  fixed(0x81, "sheet options", 2);
  fixed(0x83, "centre horizontally", 2);
  fixed(0x84, "centre vertically", 2);
  fixed(0x8C, "country", 4);
  fixed(0x99, "standard width", 2);
  fixed(0xA0, "view scale", 4);
  fixed(0xF6, "private record", 10);
  const auto sized = [&](std::size_t type, std::string_view name) {
    kinds[type] = {name, kWithLength};
  };
  sized(0x04, "text cell");
  sized(0x06, "formula cell");
  sized(0x07, "formula text");
  sized(0x14, "print header");
  sized(0x15, "print footer");
  sized(0x17, "link");
  sized(0x18, "defined name");
  sized(0x1A, "vertical page breaks");
  sized(0x1B, "horizontal page breaks");
  sized(0x1D, "selection");
  sized(0x1E, "number format");
  sized(0x23, "linked name");
  sized(0x31, "font");
  sized(0x3D, "workbook window");
  sized(0x3E, "sheet window");
  sized(0x4D, "printer settings");
  sized(0x85, "sheet entry");
  sized(0xA1, "page setup");
  sized(0xBD, "packed number cells");
  sized(0xBE, "blank cells");
  sized(0xE0, "cell format");
  return kinds;
}

constexpr std::array<RecordKind, 256> kKinds = MakeKinds();

}  // namespace

std::string RecordPlace(const Record& record) {
  char type[8];
  std::snprintf(type, sizeof type, "0x%02X", static_cast<unsigned>(record.type));
  const std::string_view name = kKinds[record.type].name;
  return "record " + std::string(type) + (name.empty() ? "" : " (" + std::string(name) + ")") +
         " at offset " + std::to_string(record.offset);
}

void RecordFail(const Record& record, const std::string& what) {
  throw FacilityError(errc::kFileCorrupt,
                      "The workbook file is damaged: " + RecordPlace(record) + ": " + what);
}

Record RecordStream::Next() {
  Record record;
  record.offset = position_;
  record.type = static_cast<std::uint8_t>(bytes_[position_]);
  const RecordKind& kind = kKinds[record.type];
  if (kind.length == kUnknown) RecordFail(record, "a record type this format does not have");
  std::size_t at = position_ + 1;
  std::size_t length = 0;
  if (kind.length == kWithLength) {
    if (at >= bytes_.size()) RecordFail(record, "the file ends before the record's length");
    length = static_cast<unsigned char>(bytes_[at++]);
    if (length == 0xFF) {
      if (at + 2 > bytes_.size()) RecordFail(record, "the file ends inside the record's length");
      length = static_cast<unsigned char>(bytes_[at]) |
               (static_cast<std::size_t>(static_cast<unsigned char>(bytes_[at + 1])) << 8);
      at += 2;
    }
    if (length > bytes_.size() - at)
      RecordFail(record,
                 "a length of " + std::to_string(length) + " runs past the end of the file");
  } else {
    length = static_cast<std::size_t>(kind.length);
    if (length > bytes_.size() - at) RecordFail(record, "the record is truncated");
  }
  record.data = bytes_.substr(at, length);
  position_ = at + length;
  return record;
}

std::string_view RecordReader::Bytes(std::size_t count) {
  if (count > Left()) Fail("the record ends inside its data");
  const std::string_view bytes = record_.data.substr(position_, count);
  position_ += count;
  return bytes;
}

std::uint8_t RecordReader::U8() {
  return static_cast<std::uint8_t>(Bytes(1)[0]);
}

std::uint16_t RecordReader::U16() {
  const std::string_view b = Bytes(2);
  return static_cast<std::uint16_t>(static_cast<unsigned char>(b[0]) |
                                    (static_cast<unsigned char>(b[1]) << 8));
}

std::uint32_t RecordReader::U32() {
  const std::uint32_t low = U16();
  return low | (static_cast<std::uint32_t>(U16()) << 16);
}

double RecordReader::F64() {
  const std::uint64_t low = U32();
  return std::bit_cast<double>(low | (static_cast<std::uint64_t>(U32()) << 32));
}

std::string RecordReader::Text(std::size_t length) {
  return FromCodePage1252(Bytes(length));
}

}  // namespace gustline::wb
