#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "core/workbook/model/NamedCells.h"
#include "core/workbook/model/Workbook.h"
#include "core/workbook/value/Value.h"

namespace gustline::books::testing {

// The WindData that the build carries, read afresh.
inline std::unique_ptr<wb::Workbook> OpenBuiltWindData() {
  auto book = std::make_unique<wb::Workbook>("WindData");
  book->ReadWorkbook(GUSTLINE_WINDDATA_PATH);
  return book;
}

inline void Set(wb::Workbook& book, std::string_view name, double value) {
  wb::WriteNamedNumber(book, name, value);
}

inline double Number(wb::Workbook& book, std::string_view name) {
  book.Recalc();
  return wb::ReadNamedNumber(book, name);
}

// What a cell of a sheet holds, by sheet name and cell text ("A125").
inline wb::Value CellAt(wb::Workbook& book, std::string_view sheet, std::string_view cell) {
  book.Recalc();
  const auto where = book.ResolveReference(std::string(sheet) + "!" + std::string(cell));
  book.SetActiveSheet(where->first);
  return book.CellValue(where->second.firstRow, where->second.firstCol);
}

}  // namespace gustline::books::testing
