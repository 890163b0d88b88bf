#include <cstddef>
#include <cstdint>

#include "CheckReader.h"
#include "core/workbook/io/StoredFormat.h"

// Arbitrary bytes read as a stored record stream.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  return CheckReader(gustline::wb::ReadStored, data, size);
}
