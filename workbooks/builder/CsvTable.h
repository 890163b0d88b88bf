#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "SourceText.h"

namespace gustline::books {

// A table of numbers kept as comma-separated text with a heading line, read as a grid: one
// column of the file gives the row keys, one the column keys and one the values, of the
// lines whose other columns match the filter. Rows and columns stand in the order the file
// first names them, which must be ascending. Used where a table of the standard is data
// beside the book.
struct CsvGrid {
  std::vector<double> rowKeys;
  std::vector<double> columnKeys;
  std::vector<std::vector<double>> values;  // [row][column]
};

struct CsvFilter {
  std::string column;
  std::string value;
};

struct CsvGridColumns {
  std::string rowKey;
  std::string columnKey;
  std::string value;
};

// Faults (a missing file or column, a field that is no number, a key pair given twice or
// missing, no line that matches) raise SourceError at `where`.
CsvGrid ReadCsvGrid(const std::filesystem::path& file, const CsvGridColumns& columns,
                    const std::vector<CsvFilter>& filters, const SourceLocation& where);

// The fields of one line: split at commas outside double quotes, "" for a quote.
std::vector<std::string> SplitCsvLine(std::string_view line);

}  // namespace gustline::books
