#include "geometry/DxfReader.h"

#include <filesystem>
#include <fstream>
#include <iterator>

#include "core/workbook/model/Workbook.h"
#include "core/workbook/value/Utf8.h"
#include "geometry/SortLines.h"

namespace gustline::geometry {
namespace {

bool IsBlank(char c) {
  return c == ' ' || c == '\r' || c == '\t' || c == '\n' || c == ',';
}

bool IsCoordinateCode(std::string_view token) {
  return token == "10" || token == "20" || token == "11" || token == "21";
}

Message Refusal() {
  return {"File Error", " Incomplete geometry. Check DXF file", PromptIcon::Stop,
          PromptButtons::Ok};
}

}  // namespace

std::vector<std::string_view> DxfTokens(std::string_view text) {
  std::vector<std::string_view> tokens;
  std::size_t i = 0;
  while (i < text.size()) {
    while (i < text.size() && IsBlank(text[i])) ++i;
    const std::size_t start = i;
    while (i < text.size() && !IsBlank(text[i])) ++i;
    if (i > start) tokens.push_back(text.substr(start, i - start));
  }
  return tokens;
}

std::vector<std::string> LineValues(const std::vector<std::string_view>& tokens) {
  std::vector<std::string> values;
  for (std::size_t i = 0; i < tokens.size(); ++i) {
    if (tokens[i] != "LINE") continue;
    // Up to and including the value under code 21, or to the end of the drawing.
    while (++i < tokens.size()) {
      if (IsCoordinateCode(tokens[i]) && i + 1 < tokens.size()) values.emplace_back(tokens[i + 1]);
      if (tokens[i] == "21") break;
    }
  }
  return values;
}

DxfOutline ReadDxfText(std::string_view text) {
  std::vector<std::string> values = LineValues(DxfTokens(text));
  DxfOutline outline;
  if (SortLines(values, true) != LineStatus::Closed) {
    outline.message = Refusal();
    return outline;
  }
  for (std::size_t k = 0; k + 1 < values.size(); k += 2)
    outline.rows.emplace_back(std::move(values[k]), std::move(values[k + 1]));
  return outline;
}

DxfOutline ReadDxfFile(const std::string& path) {
  std::error_code error;
  std::ifstream file;
  if (std::filesystem::is_regular_file(path, error)) file.open(path, std::ios::binary);
  std::string text;
  if (file) text.assign(std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>());
  if (!file.is_open() || file.bad()) {
    DxfOutline outline;
    outline.message = Message{"Error", "Unable to Read DXF File : " + wb::PrintableText(path),
                              PromptIcon::Stop, PromptButtons::Ok};
    return outline;
  }
  return ReadDxfText(text);
}

std::string OutlineClipText(const std::vector<std::pair<std::string, std::string>>& rows) {
  std::string text;
  for (const auto& [x, y] : rows) text.append(x).append(1, '\t').append(y).append("\r\n");
  return text;
}

bool ReadDXF(Prompt& prompt, wb::Workbook& grid) {
  const auto choice = prompt.ChooseOpenFile(
      {"Read DXF File", "AutoCad DXF Files (*.DXF)|*.DXF", 1, std::string(), std::string()});
  if (!choice) return false;
  const DxfOutline outline = ReadDxfFile(choice->path);
  if (outline.message) {
    prompt.Show(*outline.message);
    return false;
  }
  grid.SetSelection("A1:B1200");
  grid.ClearRange(3);
  grid.SetSelection("A1");
  grid.SetClipText(OutlineClipText(outline.rows));
  grid.SetActiveCell(1, 1);
  return true;
}

}  // namespace gustline::geometry
