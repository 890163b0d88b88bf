#pragma once

#include <sstream>
#include <string>

namespace gustline::wb {

// The one way the program writes a file: whole or not at all, and never to the harm of what
// was there. The content is collected, then written to a temporary file of a unique name
// made exclusively in the target's folder, synced, renamed over the target, and the folder
// synced. The target keeps its permission bits, a symbolic link is written through to the
// file it names, and a read-only file is refused. Something that is not a regular file
// ("-" for standard output, /dev/stdout, a pipe, a device) is written to directly, and every
// write to it is checked.
class AtomicFile {
 public:
  // Raises FacilityError(errc::kFileWrite) when the target cannot be written at all: a
  // read-only file, a folder that does not exist or does not take the file.
  explicit AtomicFile(std::string path);
  ~AtomicFile();
  AtomicFile(const AtomicFile&) = delete;
  AtomicFile& operator=(const AtomicFile&) = delete;

  std::ostream& Stream() { return content_; }
  // Writes and renames; raises FacilityError(errc::kFileWrite) on any failure, with the
  // target as it was and no temporary file left behind.
  void Commit();

 private:
  [[noreturn]] void Fail(const std::string& reason);
  void OpenTemporary();
  void WriteAll(int fd, const std::string& bytes);
  void RemoveTemporary();

  std::string path_;       // as the caller named it, for messages
  std::string target_;     // the file that is replaced, symbolic links followed
  std::string temporary_;  // empty until made, and again once renamed or removed
  int temporaryFd_ = -1;
  int directFd_ = -1;  // a target written in place
  bool closeDirect_ = false;
  unsigned targetMode_ = 0;
  std::ostringstream content_;
};

}  // namespace gustline::wb
