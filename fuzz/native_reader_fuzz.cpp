#include <cstddef>
#include <cstdint>
#include <sstream>
#include <string>

#include "NativeRoundTrip.h"
#include "core/workbook/io/NativeFormat.h"
#include "core/workbook/model/Workbook.h"
#include "core/workbook/value/FacilityError.h"

// Arbitrary bytes read as a native workbook file: a refusal must be kFileCorrupt, and a book
// that is accepted must write, read back and write again to the same bytes.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using gustline::wb::FacilityError;
  using gustline::wb::Workbook;
  Workbook book("Fuzz");
  std::istringstream in(std::string(reinterpret_cast<const char*>(data), size));
  try {
    gustline::wb::ReadNative(in, book);
  } catch (const FacilityError& error) {
    if (error.Number() != gustline::wb::errc::kFileCorrupt) __builtin_trap();
    return 0;
  }
  CheckNativeRoundTrip(book);
  return 0;
}
