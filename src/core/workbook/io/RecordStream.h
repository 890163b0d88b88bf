#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace gustline::wb {

// The record stream of a stored workbook: each record is a type byte, then for most types
// a length byte (0xFF: a 16-bit length follows), then its data. The types of fixed length
// carry no length. docs/stored-format.md lists them.
struct Record {
  std::uint8_t type = 0;
  std::size_t offset = 0;  // of the type byte in the file
  std::string_view data;
};

// "record 0x03 (number cell) at offset 1234", for messages.
std::string RecordPlace(const Record& record);

// Raises FacilityError(errc::kFileCorrupt) naming the record and what is wrong with it.
[[noreturn]] void RecordFail(const Record& record, const std::string& what);

// Cuts the file into records, checking every length against the bytes that are there.
class RecordStream {
 public:
  explicit RecordStream(std::string_view bytes) : bytes_(bytes) {}

  bool AtEnd() const { return position_ >= bytes_.size(); }
  // The next record; raises on a type that no part of the format knows, a truncated record
  // and a length past the end of the file.
  Record Next();

 private:
  std::string_view bytes_;
  std::size_t position_ = 0;
};

// Reads the fields of one record in order; running past its data fails with its place.
class RecordReader {
 public:
  explicit RecordReader(const Record& record) : record_(record) {}

  const Record& Source() const { return record_; }
  std::size_t Left() const { return record_.data.size() - position_; }
  void Skip(std::size_t count) { Bytes(count); }
  std::uint8_t U8();
  std::uint16_t U16();
  std::int16_t I16() { return static_cast<std::int16_t>(U16()); }
  std::uint32_t U32();
  double F64();
  std::string_view Bytes(std::size_t count);
  // A single-byte text of the length given, in UTF-8.
  std::string Text(std::size_t length);
  [[noreturn]] void Fail(const std::string& what) const { RecordFail(record_, what); }

 private:
  Record record_;
  std::size_t position_ = 0;
};

}  // namespace gustline::wb
