#include "report/ReportJson.h"

#include <charconv>
#include <cmath>
#include <cstdio>
#include <vector>

#include "core/workbook/address/CellAddress.h"
#include "core/workbook/model/Workbook.h"
#include "core/workbook/value/CodePage1252.h"
#include "core/workbook/value/Utf8.h"
#include "core/workbook/value/Value.h"

namespace gustline::report {
namespace {

// The shortest text that reads back to the same double.
std::string JsonNumber(double number) {
  if (!std::isfinite(number)) return "null";
  char buffer[32];
  const auto result = std::to_chars(buffer, buffer + sizeof buffer, number);
  return std::string(buffer, result.ptr);
}

const char* KindName(const wb::Value& value) {
  switch (value.GetKind()) {
    case wb::Value::Kind::Number:
      return "number";
    case wb::Value::Kind::Text:
      return "text";
    case wb::Value::Kind::Boolean:
      return "boolean";
    case wb::Value::Kind::Error:
      return "error";
    case wb::Value::Kind::Empty:
      break;
  }
  return "empty";
}

void AppendSheet(std::string& json, wb::Workbook& report, int sheet) {
  report.SetActiveSheet(sheet);
  const wb::Sheet& page = report.GetSheet(sheet);
  json += "    {\n      \"name\": " + JsonString(page.Name()) + ",\n      \"hiddenRows\": [";
  const std::vector<int>& hidden = page.HiddenRows();
  for (std::size_t i = 0; i < hidden.size(); ++i)
    json += (i == 0 ? "" : ", ") + std::to_string(hidden[i]);
  json += "],\n      \"cells\": [";
  std::vector<std::pair<int, int>> filled;
  page.ForEachCell([&filled](int row, int col, const wb::Cell& cell) {
    if (cell.HasContent()) filled.emplace_back(row, col);
  });
  const char* separator = "\n";
  for (const auto& [row, col] : filled) {
    const wb::Value value = report.CellValue(row, col);
    json += separator;
    json += "        {\"ref\": \"" + wb::CellRefText(row, col, false) + "\", \"type\": \"" +
            KindName(value) + "\", \"value\": " + JsonValue(value) +
            ", \"text\": " + JsonString(report.CellText(row, col)) + "}";
    separator = ",\n";
  }
  json += filled.empty() ? "]\n    }" : "\n      ]\n    }";
}

}  // namespace

std::string JsonValue(const wb::Value& value) {
  switch (value.GetKind()) {
    case wb::Value::Kind::Number:
      return JsonNumber(value.AsNumber());
    case wb::Value::Kind::Text:
      return JsonString(value.AsText());
    case wb::Value::Kind::Boolean:
      return value.AsBoolean() ? "true" : "false";
    case wb::Value::Kind::Error:
      return JsonString(wb::ErrorText(value.AsError()));
    case wb::Value::Kind::Empty:
      break;
  }
  return "null";
}

std::string JsonString(std::string_view text) {
  // Projects of old hold their texts in code page 1252; JSON is UTF-8 only.
  const std::string utf8 = wb::IsUtf8(text) ? std::string(text) : wb::FromCodePage1252(text);
  std::string json = "\"";
  for (const char c : utf8) {
    switch (c) {
      case '"':
        json += "\\\"";
        break;
      case '\\':
        json += "\\\\";
        break;
      case '\n':
        json += "\\n";
        break;
      case '\r':
        json += "\\r";
        break;
      case '\t':
        json += "\\t";
        break;
      default:
        if (static_cast<unsigned char>(c) < 0x20) {
          char escaped[8];
          std::snprintf(escaped, sizeof escaped, "\\u%04x", static_cast<unsigned>(c));
          json += escaped;
        } else {
          json += c;
        }
    }
  }
  return json + "\"";
}

std::string ReportJson(wb::Workbook& report, std::string_view templateName) {
  if (templateName.empty())
    return "{\n  \"created\": false,\n  \"template\": null,\n  \"sheets\": []\n}\n";
  std::string json =
      "{\n  \"created\": true,\n  \"template\": " + JsonString(templateName) + ",\n  \"sheets\": [";
  const int activeSheet = report.ActiveSheet();
  for (int sheet = 1; sheet <= report.SheetCount(); ++sheet) {
    json += sheet == 1 ? "\n" : ",\n";
    AppendSheet(json, report, sheet);
  }
  report.SetActiveSheet(activeSheet);
  return json + "\n  ]\n}\n";
}

}  // namespace gustline::report
