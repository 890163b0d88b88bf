#pragma once

#include <string>
#include <string_view>

namespace gustline::wb {
class Value;
class Workbook;
}  // namespace gustline::wb

namespace gustline::report {

// The report as JSON (docs/report-json.md): the template, then per sheet its name, hidden
// rows and every cell that holds something, with its reference, value and display text.
// An empty template name writes a report that was not created. The active sheet is kept.
std::string ReportJson(wb::Workbook& report, std::string_view templateName);

// A value as JSON: a number in the shortest form that reads back the same (null when not
// finite), a text or an error text as a string, true or false, null for an empty cell.
std::string JsonValue(const wb::Value& value);

// A JSON string literal, quotes included: always UTF-8, a text that is not read as code
// page 1252, control characters escaped.
std::string JsonString(std::string_view text);

}  // namespace gustline::report
