#include "core/FileNames.h"

#include <filesystem>
#include <system_error>

#include "core/TemporaryFolder.h"
#include "core/TextTools.h"

namespace gustline {

std::string JoinPath(std::string_view folder, std::string_view name) {
  std::string path(folder);
  path += static_cast<char>(std::filesystem::path::preferred_separator);
  path += name;
  return path;
}

bool HasFile(const std::string& path) {
  std::error_code error;
  return !path.empty() && std::filesystem::is_regular_file(path, error);
}

void DeleteIfPresent(const std::string& path) {
  std::error_code error;
  if (HasFile(path)) std::filesystem::remove(path, error);
}

std::string LastPathPart(std::string_view path) {
  const auto separator = path.find_last_of("/\\");
  return std::string(separator == std::string_view::npos ? path : path.substr(separator + 1));
}

std::string TemporaryBookPath(std::string_view bookName) {
  return JoinPath(TemporaryFolder(), std::string(TrimBlanks(bookName)) + "01.vts");
}

}  // namespace gustline
