#pragma once

#include <unistd.h>

#include <filesystem>
#include <string>

namespace gustline::testing {

// A folder name under the system's temporary folder that no other test process running at
// the same time uses: the process id tells processes apart, the serial the folders of one
// process. Addresses of objects do not: under AddressSanitizer every process lays out its
// heap alike.
inline std::filesystem::path UniqueTempFolder(const std::string& prefix) {
  static int serial = 0;
  return std::filesystem::temp_directory_path() /
         (prefix + std::to_string(::getpid()) + "-" + std::to_string(++serial));
}

}  // namespace gustline::testing
