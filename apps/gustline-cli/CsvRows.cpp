#include "CsvRows.h"

#include <iterator>

namespace gustline::cli {

std::optional<std::vector<std::vector<std::string>>> ReadCsvRows(std::istream& in) {
  std::string text((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
  // A file saved as UTF-8 may begin with a byte-order mark, which is no part of a name.
  if (text.rfind("\xEF\xBB\xBF", 0) == 0) text.erase(0, 3);
  std::vector<std::vector<std::string>> rows;
  std::vector<std::string> row;
  std::string field;
  bool quoted = false;
  bool rowStarted = false;
  const auto endRow = [&] {
    if (rowStarted) {
      row.push_back(std::move(field));
      rows.push_back(std::move(row));
    }
    row.clear();
    field.clear();
    rowStarted = false;
  };
  for (std::size_t i = 0; i < text.size(); ++i) {
    const char c = text[i];
    if (quoted) {
      if (c != '"') {
        field += c;
      } else if (i + 1 < text.size() && text[i + 1] == '"') {
        field += '"';
        ++i;
      } else {
        quoted = false;
      }
      continue;
    }
    if (c == '\r' && i + 1 < text.size() && text[i + 1] == '\n') continue;
    if (c == '\n') {
      endRow();
      continue;
    }
    rowStarted = true;
    if (c == '"') {
      quoted = true;
    } else if (c == ',') {
      row.push_back(std::move(field));
      field.clear();
    } else {
      field += c;
    }
  }
  if (quoted) return std::nullopt;
  endRow();
  return rows;
}

std::string CsvLine(const std::vector<std::string>& fields) {
  std::string line;
  for (std::size_t i = 0; i < fields.size(); ++i) {
    if (i > 0) line += ',';
    const std::string& field = fields[i];
    if (field.find_first_of(",\"\r\n") == std::string::npos) {
      line += field;
      continue;
    }
    line += '"';
    for (const char c : field) {
      if (c == '"') line += '"';
      line += c;
    }
    line += '"';
  }
  return line + '\n';
}

}  // namespace gustline::cli
