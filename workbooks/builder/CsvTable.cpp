#include "CsvTable.h"

#include <algorithm>
#include <fstream>
#include <functional>
#include <map>
#include <utility>

#include "core/workbook/value/NumberFormat.h"

namespace gustline::books {
namespace {

std::size_t ColumnOf(const std::vector<std::string>& heading, const std::string& name,
                     const std::filesystem::path& file, const SourceLocation& where) {
  const auto found = std::find(heading.begin(), heading.end(), name);
  if (found == heading.end())
    throw SourceError(where, "'" + file.string() + "' has no column '" + name + "'");
  return static_cast<std::size_t>(found - heading.begin());
}

// The position of `key` among `keys`, added at the end when new.
std::size_t KeyIndex(std::vector<double>& keys, double key) {
  const auto found = std::find(keys.begin(), keys.end(), key);
  if (found != keys.end()) return static_cast<std::size_t>(found - keys.begin());
  keys.push_back(key);
  return keys.size() - 1;
}

}  // namespace

std::vector<std::string> SplitCsvLine(std::string_view line) {
  std::vector<std::string> fields(1);
  bool quoted = false;
  for (std::size_t i = 0; i < line.size(); ++i) {
    const char c = line[i];
    if (c == '"') {
      if (quoted && i + 1 < line.size() && line[i + 1] == '"') {
        fields.back() += '"';
        ++i;
      } else {
        quoted = !quoted;
      }
    } else if (c == ',' && !quoted) {
      fields.emplace_back();
    } else if (c != '\r') {
      fields.back() += c;
    }
  }
  return fields;
}

CsvGrid ReadCsvGrid(const std::filesystem::path& file, const CsvGridColumns& columns,
                    const std::vector<CsvFilter>& filters, const SourceLocation& where) {
  std::ifstream in(file);
  if (!in) throw SourceError(where, "cannot read '" + file.string() + "'");
  std::string line;
  if (!std::getline(in, line)) throw SourceError(where, "'" + file.string() + "' is empty");
  const auto heading = SplitCsvLine(line);
  const std::size_t rowColumn = ColumnOf(heading, columns.rowKey, file, where);
  const std::size_t keyColumn = ColumnOf(heading, columns.columnKey, file, where);
  const std::size_t valueColumn = ColumnOf(heading, columns.value, file, where);
  std::vector<std::pair<std::size_t, std::string>> tests;
  tests.reserve(filters.size());
  for (const auto& filter : filters)
    tests.emplace_back(ColumnOf(heading, filter.column, file, where), filter.value);

  CsvGrid grid;
  std::map<std::pair<std::size_t, std::size_t>, double> cells;
  int lineNumber = 1;
  while (std::getline(in, line)) {
    ++lineNumber;
    if (line.empty() || line == "\r") continue;
    const auto fields = SplitCsvLine(line);
    const std::string place = file.filename().string() + " line " + std::to_string(lineNumber);
    if (fields.size() != heading.size())
      throw SourceError(where, place + " has " + std::to_string(fields.size()) + " fields, not " +
                                   std::to_string(heading.size()));
    const bool matches = std::all_of(tests.begin(), tests.end(), [&](const auto& test) {
      return fields[test.first] == test.second;
    });
    if (!matches) continue;
    const auto number = [&](std::size_t column) {
      const auto read = ReadNumber(fields[column]);
      if (!read) throw SourceError(where, place + ": '" + fields[column] + "' is not a number");
      return *read;
    };
    const std::size_t row = KeyIndex(grid.rowKeys, number(rowColumn));
    const std::size_t column = KeyIndex(grid.columnKeys, number(keyColumn));
    if (!cells.emplace(std::pair{row, column}, number(valueColumn)).second)
      throw SourceError(where, place + " gives a value that an earlier line gave");
  }
  if (cells.empty()) throw SourceError(where, "no line of '" + file.string() + "' matches");
  // The lookups of a table search its keys in ascending order.
  for (const auto* keys : {&grid.rowKeys, &grid.columnKeys}) {
    if (std::adjacent_find(keys->begin(), keys->end(), std::greater_equal<>()) != keys->end())
      throw SourceError(where, "the keys of '" + file.string() + "' do not ascend");
  }
  grid.values.assign(grid.rowKeys.size(), std::vector<double>(grid.columnKeys.size()));
  for (std::size_t r = 0; r < grid.rowKeys.size(); ++r) {
    for (std::size_t c = 0; c < grid.columnKeys.size(); ++c) {
      const auto found = cells.find({r, c});
      if (found == cells.end())
        throw SourceError(where, "'" + file.string() + "' has no value for " + columns.rowKey +
                                     " " + wb::FormatNumber(grid.rowKeys[r], "General") + ", " +
                                     columns.columnKey + " " +
                                     wb::FormatNumber(grid.columnKeys[c], "General"));
      grid.values[r][c] = found->second;
    }
  }
  return grid;
}

}  // namespace gustline::books
