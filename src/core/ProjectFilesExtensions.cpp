#include "core/ProjectFilesExtensions.h"

#include "core/FileNames.h"
#include "core/TextTools.h"

namespace gustline {
namespace {

std::size_t ExtensionDot(std::string_view path) {
  return path.find('.', path.size() < 4 ? 0 : path.size() - 4);
}

std::string LowerCase(std::string_view text) {
  std::string lower(text);
  for (char& c : lower)
    if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
  return lower;
}

}  // namespace

std::string ExtensionOf(std::string_view path) {
  const std::size_t dot = ExtensionDot(path);
  return dot == std::string_view::npos ? std::string() : std::string(path.substr(dot + 1));
}

std::string BaseOf(std::string_view path) {
  return std::string(path.substr(0, ExtensionDot(path)));
}

std::optional<int> FileTypeOfName(std::string_view path) {
  const std::string extension = LowerCase(ExtensionOf(path));
  if (extension == "gln" || extension == "glz") return kProjectFileType;
  if (extension == "glt" || extension == "glu") return kTemplateFileType;
  if (extension == "xls") return kExcelExportType;
  if (extension == "txt") return kTextExportType;
  return std::nullopt;
}

std::string ProjectNameFromTemplate(std::string_view path) {
  return UpperCase(BaseOf(LastPathPart(path))) + ".GLN";
}

}  // namespace gustline
