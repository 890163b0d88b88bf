#pragma once

#include <sstream>
#include <string>

#include "core/workbook/io/NativeFormat.h"
#include "core/workbook/model/Workbook.h"

// The check that the readers' fuzz targets share: a book that a reader accepted writes in our
// own format, reads back and writes again to the same bytes. Calculation is switched off
// first, since a recalculation may read the clock through NOW().
inline void CheckNativeRoundTrip(gustline::wb::Workbook& book) {
  const auto written = [](gustline::wb::Workbook& source) {
    std::ostringstream out;
    gustline::wb::WriteNative(source, out);
    return out.str();
  };
  book.SetAutoRecalc(false);
  const std::string first = written(book);
  gustline::wb::Workbook copy(book.BookName());  // a read keeps the book's own name
  std::istringstream again(first);
  gustline::wb::ReadNative(again, copy);
  if (written(copy) != first) __builtin_trap();
}
