#pragma once

#include <cstddef>
#include <cstdint>
#include <istream>
#include <sstream>
#include <string>

#include "core/workbook/io/NativeFormat.h"
#include "core/workbook/model/Workbook.h"
#include "core/workbook/value/FacilityError.h"

// The check that the readers' fuzz targets share: arbitrary bytes given to a reader are
// refused as kFileCorrupt and nothing else, and a book that the reader accepted writes in our
// own format, reads back and writes again to the same bytes. Calculation is switched off
// first, since a recalculation may read the clock through NOW().
inline int CheckReader(void (*read)(std::istream&, gustline::wb::Workbook&),
                       const std::uint8_t* data, std::size_t size) {
  using gustline::wb::Workbook;
  const auto written = [](Workbook& source) {
    std::ostringstream out;
    gustline::wb::WriteNative(source, out);
    return out.str();
  };
  Workbook book("Fuzz");
  std::istringstream in(std::string(reinterpret_cast<const char*>(data), size));
  try {
    read(in, book);
  } catch (const gustline::wb::FacilityError& error) {
    if (error.Number() != gustline::wb::errc::kFileCorrupt) __builtin_trap();
    return 0;
  }
  book.SetAutoRecalc(false);
  const std::string first = written(book);
  Workbook copy(book.BookName());  // a read keeps the book's own name
  std::istringstream again(first);
  gustline::wb::ReadNative(again, copy);
  if (written(copy) != first) __builtin_trap();
  return 0;
}
