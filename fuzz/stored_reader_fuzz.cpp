#include <cstddef>
#include <cstdint>
#include <sstream>
#include <string>

#include "core/workbook/io/NativeFormat.h"
#include "core/workbook/io/StoredFormat.h"
#include "core/workbook/model/Workbook.h"
#include "core/workbook/value/FacilityError.h"

namespace {

std::string Written(gustline::wb::Workbook& book) {
  std::ostringstream out;
  gustline::wb::WriteNative(book, out);
  return out.str();
}

}  // namespace

// Arbitrary bytes read as a stored record stream: a refusal must be kFileCorrupt, and a book
// that is accepted must write in our own format and read back to the same bytes.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using gustline::wb::FacilityError;
  using gustline::wb::Workbook;
  Workbook book("Fuzz");
  std::istringstream in(std::string(reinterpret_cast<const char*>(data), size));
  try {
    gustline::wb::ReadStored(in, book);
  } catch (const FacilityError& error) {
    if (error.Number() != gustline::wb::errc::kFileCorrupt) __builtin_trap();
    return 0;
  }
  book.SetAutoRecalc(false);
  const std::string first = Written(book);
  Workbook copy("Fuzz");
  std::istringstream again(first);
  gustline::wb::ReadNative(again, copy);
  if (Written(copy) != first) __builtin_trap();
  return 0;
}
