#pragma once

#include <fstream>
#include <ostream>
#include <string>

namespace gustline::wb {

// Writes a file whole or not at all: the content goes to path + ".tmp" in the same folder,
// and only Commit renames it over the old file. A file never committed is removed, and the
// old one stays as it was.
class AtomicFile {
 public:
  // Raises FacilityError(errc::kFileWrite) when the folder does not take the file.
  explicit AtomicFile(std::string path);
  ~AtomicFile();
  AtomicFile(const AtomicFile&) = delete;
  AtomicFile& operator=(const AtomicFile&) = delete;

  std::ostream& Stream() { return out_; }
  // Flushes, closes and renames; raises FacilityError(errc::kFileWrite) on any failure.
  void Commit();

 private:
  [[noreturn]] void Fail();

  std::string path_;
  std::string temporary_;
  std::ofstream out_;
  bool committed_ = false;
};

}  // namespace gustline::wb
