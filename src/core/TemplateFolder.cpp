#include "core/TemplateFolder.h"

#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <system_error>

#include "core/FileNames.h"

namespace gustline {
namespace {

std::string DataHome() {
  const char* xdg = std::getenv("XDG_DATA_HOME");
  if (xdg != nullptr && *xdg != '\0') return xdg;
  const char* home = std::getenv("HOME");
  return JoinPath(JoinPath(home != nullptr ? home : ".", ".local"), "share");
}

}  // namespace

std::string TemplateFolder(const std::string& programFolder) {
  if (access(programFolder.c_str(), W_OK) == 0) return programFolder;
  std::string folder = JoinPath(DataHome(), "Gustline");
  std::error_code ignored;
  std::filesystem::create_directories(folder, ignored);
  return folder;
}

}  // namespace gustline
