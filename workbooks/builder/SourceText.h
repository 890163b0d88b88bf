#pragma once

#include <filesystem>
#include <map>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "core/workbook/value/Utf8.h"

namespace gustline::books {

// Where a piece of a workbook source stands, for messages of the form "file:line: ...".
struct SourceLocation {
  std::string file;
  int line = 0;
  std::string Text() const { return file + ":" + std::to_string(line); }
};

// A fault in a source: the build stops and prints it with its place.
class SourceError : public std::runtime_error {
 public:
  SourceError(const SourceLocation& where, const std::string& message)
      : std::runtime_error(wb::PrintableText(where.Text() + ": error: " + message)),
        where_(where) {}
  const SourceLocation& Where() const { return where_; }

 private:
  SourceLocation where_;
};

// One logical line: comments and blank lines dropped, lines ending in a backslash joined.
struct SourceLine {
  SourceLocation where;
  std::string text;
};

std::vector<SourceLine> ReadSourceLines(const std::filesystem::path& path);

// One field of a table row. A field written wholly in double quotes is taken literally
// (spaces kept, "" for a quote) and marked, so that it stays text.
struct Field {
  std::string text;
  bool quoted = false;
};

// The fields of a row "| a | b | c |": split at bars outside double quotes, trimmed.
std::vector<Field> SplitRow(std::string_view text, const SourceLocation& where);

// The words of a directive, split at blanks outside double quotes; quotes are kept.
std::vector<std::string> SplitWords(std::string_view text, const SourceLocation& where);

// A word without its surrounding double quotes, if it has them.
std::string Unquote(std::string_view word);

// A number written in full ("1.5", "-0.18", "1e3"); nullopt for anything else.
std::optional<double> ReadNumber(std::string_view text);

// Replaces every {NAME} by its parameter value; an unknown name is an error.
std::string Substitute(std::string_view text, const std::map<std::string, std::string>& params,
                       const SourceLocation& where);

}  // namespace gustline::books
