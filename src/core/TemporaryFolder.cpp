#include "core/TemporaryFolder.h"

#include <stdlib.h>

#include <cerrno>
#include <cstring>
#include <filesystem>
#include <system_error>
#include <vector>

#include "core/workbook/value/FacilityError.h"

namespace gustline {
namespace {

namespace fs = std::filesystem;

// Made once; its destructor runs at the process's normal end, the command line's too.
class PrivateFolder {
 public:
  PrivateFolder() {
    std::error_code error;
    fs::path base = fs::temp_directory_path(error);
    if (error) base = "/tmp";
    const std::string pattern = (base / "gustline-XXXXXX").string();
    std::vector<char> name(pattern.begin(), pattern.end());
    name.push_back('\0');
    if (mkdtemp(name.data()) == nullptr)
      throw wb::FacilityError(
          wb::errc::kFileWrite,
          "Cannot make a temporary folder in " + base.string() + ": " + std::strerror(errno));
    path_ = name.data();
  }
  ~PrivateFolder() {
    std::error_code ignored;
    fs::remove_all(path_, ignored);
  }
  PrivateFolder(const PrivateFolder&) = delete;
  PrivateFolder& operator=(const PrivateFolder&) = delete;

  const std::string& Path() const { return path_; }

 private:
  std::string path_;
};

}  // namespace

const std::string& TemporaryFolder() {
  static const PrivateFolder folder;
  return folder.Path();
}

}  // namespace gustline
