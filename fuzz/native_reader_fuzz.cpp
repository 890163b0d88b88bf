#include <cstddef>
#include <cstdint>

#include "CheckReader.h"
#include "core/workbook/io/NativeFormat.h"

// Arbitrary bytes read as a native workbook file.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  return CheckReader(gustline::wb::ReadNative, data, size);
}
