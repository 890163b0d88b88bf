#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "core/Prompt.h"

namespace gustline::wb {
class Workbook;
}

namespace gustline::geometry {

// The blank-separated tokens of a drawing: carriage returns, tabs, line feeds and commas
// count as blanks.
std::vector<std::string_view> DxfTokens(std::string_view text);

// The values under the codes 10, 20, 11 and 21 of each LINE entity, in file order and with
// the file's own spelling. Tokens are not paired with codes: a value that reads as one of
// these codes is taken as a code.
std::vector<std::string> LineValues(const std::vector<std::string_view>& tokens);

// The outline of a drawing, one X-Y row per point, each boundary followed by an empty row;
// or the message that refuses the file.
struct DxfOutline {
  std::vector<std::pair<std::string, std::string>> rows;
  std::optional<Message> message;
};

DxfOutline ReadDxfText(std::string_view text);
// `path` names the file in the message when it cannot be read.
DxfOutline ReadDxfFile(const std::string& path);

// The rows as a block of clip text: X, TAB, Y, CR LF per row.
std::string OutlineClipText(const std::vector<std::pair<std::string, std::string>>& rows);

// Asks for a drawing and puts its outline into the coordinate grid (its active sheet,
// columns A and B). False, with the grid unchanged, when no file was chosen or the drawing
// was refused; the refusal is shown through the prompt.
bool ReadDXF(Prompt& prompt, wb::Workbook& grid);

}  // namespace gustline::geometry
