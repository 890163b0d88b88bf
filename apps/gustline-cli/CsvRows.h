#pragma once

#include <istream>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace gustline::cli {

// The rows of a comma-separated file: fields in double quotes may hold commas, line breaks
// and doubled quotes; a line ending in CR LF ends as one in LF; blank lines are skipped; a
// leading UTF-8 byte-order mark is dropped.
// nullopt when a quoted field is never closed.
std::optional<std::vector<std::vector<std::string>>> ReadCsvRows(std::istream& in);

// One row as a line of such a file, each field quoted only when it needs to be.
std::string CsvLine(const std::vector<std::string>& fields);

}  // namespace gustline::cli
