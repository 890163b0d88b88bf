#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace gustline {

// What a file name's extension makes of it, by the values of the file dialogs.
inline constexpr int kProjectFileType = 5;       // ".gln", and the older ".glz"
inline constexpr int kTemplateFileType = 30001;  // ".glt", and the older ".glu"
inline constexpr int kExcelExportType = 4;       // ".xls"
inline constexpr int kTextExportType = 3;        // ".txt"
inline constexpr int kPdfExportType = 30002;     // ".pdf", the report as it prints

// The text after a dot found from the fourth-last character on, so that only extensions
// of up to three letters count; empty when there is no such dot.
std::string ExtensionOf(std::string_view path);
// The path without that extension and its dot; the whole path when there is none.
std::string BaseOf(std::string_view path);
// The file type of a name, compared in lower case; nullopt for anything else, which is
// neither read nor written.
std::optional<int> FileTypeOfName(std::string_view path);
// The project a template opens as: "C:\x\Wall.glt" gives "WALL.GLN", with no folder.
std::string ProjectNameFromTemplate(std::string_view path);

}  // namespace gustline
