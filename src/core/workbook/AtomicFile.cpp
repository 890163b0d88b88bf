#include "AtomicFile.h"

#include <filesystem>

#include "FacilityError.h"

namespace gustline::wb {

AtomicFile::AtomicFile(std::string path)
    : path_(std::move(path)),
      temporary_(path_ + ".tmp"),
      out_(temporary_, std::ios::binary | std::ios::trunc) {
  if (!out_) Fail();
}

AtomicFile::~AtomicFile() {
  if (committed_) return;
  out_.close();
  std::error_code ignored;
  std::filesystem::remove(temporary_, ignored);
}

void AtomicFile::Commit() {
  out_.flush();
  if (!out_) Fail();
  out_.close();
  if (out_.fail()) Fail();
  std::error_code error;
  std::filesystem::rename(temporary_, path_, error);
  if (error) Fail();
  committed_ = true;
}

void AtomicFile::Fail() {
  throw FacilityError(errc::kFileWrite, "Cannot write the file " + path_);
}

}  // namespace gustline::wb
