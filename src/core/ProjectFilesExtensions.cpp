#include "core/ProjectFilesExtensions.h"

#include "core/FileNames.h"
#include "core/TextTools.h"
#include "core/workbook/value/TextCompare.h"

namespace gustline {
namespace {

std::size_t ExtensionDot(std::string_view path) {
  return path.find('.', path.size() < 4 ? 0 : path.size() - 4);
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
  const std::string extension = ExtensionOf(path);
  const auto is = [&extension](std::string_view wanted) {
    return wb::EqualNoCase(extension, wanted);
  };
  if (is("gln") || is("glz")) return kProjectFileType;
  if (is("glt") || is("glu")) return kTemplateFileType;
  if (is("xls")) return kExcelExportType;
  if (is("txt")) return kTextExportType;
  if (is("pdf")) return kPdfExportType;
  return std::nullopt;
}

std::string ProjectNameFromTemplate(std::string_view path) {
  return UpperCase(BaseOf(LastPathPart(path))) + ".GLN";
}

}  // namespace gustline
