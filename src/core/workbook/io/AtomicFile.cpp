// The one place where the engine meets the operating system's file calls: exclusive
// creation, sync and rename are what make a save safe, and the standard library has none.
#include "core/workbook/io/AtomicFile.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstring>
#include <filesystem>
#include <string_view>
#include <utility>
#include <vector>

#include "core/workbook/value/FacilityError.h"

namespace gustline::wb {
namespace {

namespace fs = std::filesystem;

constexpr int kMaxLinkHops = 40;

std::string Reason(int error) {
  return std::strerror(error);
}

// The standard stream a name stands for, or -1: these are written in place whatever they
// point at, even a regular file that the shell opened for us.
int StandardStream(std::string_view path) {
  struct Alias {
    std::string_view name;
    int fd;
  };
  constexpr std::array<Alias, 7> kAliases = {{{"-", STDOUT_FILENO},
                                              {"/dev/stdout", STDOUT_FILENO},
                                              {"/dev/fd/1", STDOUT_FILENO},
                                              {"/proc/self/fd/1", STDOUT_FILENO},
                                              {"/dev/stderr", STDERR_FILENO},
                                              {"/dev/fd/2", STDERR_FILENO},
                                              {"/proc/self/fd/2", STDERR_FILENO}}};
  for (const Alias& alias : kAliases)
    if (alias.name == path) return alias.fd;
  return -1;
}

// The file a path names once every symbolic link on its end is followed, so that a save
// through a link replaces the file and keeps the link.
std::string FollowLinks(std::string path) {
  for (int hop = 0; hop < kMaxLinkHops; ++hop) {
    std::error_code error;
    if (!fs::is_symlink(fs::symlink_status(path, error))) return path;
    const fs::path link = fs::read_symlink(path, error);
    if (error) return path;
    path = link.is_absolute() ? link.string() : (fs::path(path).parent_path() / link).string();
  }
  return path;
}

unsigned CreationMode() {
  const mode_t mask = umask(0);
  umask(mask);
  return 0666U & ~static_cast<unsigned>(mask);
}

void SyncFolder(const std::string& target) {
  std::string folder = fs::path(target).parent_path().string();
  if (folder.empty()) folder = ".";
  const int fd = open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (fd < 0) return;
  // The file is in place by now; a folder that cannot be synced changes nothing for it.
  fsync(fd);
  close(fd);
}

}  // namespace

AtomicFile::AtomicFile(std::string path) : path_(std::move(path)) {
  if (const int fd = StandardStream(path_); fd >= 0) {
    directFd_ = fd;
    return;
  }
  struct stat info {};
  if (stat(path_.c_str(), &info) == 0 && !S_ISREG(info.st_mode)) {
    if (S_ISDIR(info.st_mode)) Fail("it is a folder");
    directFd_ = open(path_.c_str(), O_WRONLY | O_NOCTTY | O_CLOEXEC);
    if (directFd_ < 0) Fail(Reason(errno));
    closeDirect_ = true;
    return;
  }
  target_ = FollowLinks(path_);
  if (stat(target_.c_str(), &info) == 0) {
    // The owner's write bit is asked for too: the superuser passes every access test.
    if ((info.st_mode & S_IWUSR) == 0 || access(target_.c_str(), W_OK) != 0)
      Fail("the file is read-only");
    targetMode_ = info.st_mode & 07777U;
  } else {
    targetMode_ = CreationMode();
  }
  OpenTemporary();
}

AtomicFile::~AtomicFile() {
  RemoveTemporary();
  if (closeDirect_ && directFd_ >= 0) close(directFd_);
}

void AtomicFile::OpenTemporary() {
  const fs::path target(target_);
  const fs::path folder = target.has_parent_path() ? target.parent_path() : fs::path(".");
  const std::string pattern = (folder / ("." + target.filename().string() + ".XXXXXX")).string();
  std::vector<char> name(pattern.begin(), pattern.end());
  name.push_back('\0');
  temporaryFd_ = mkostemp(name.data(), O_CLOEXEC);
  if (temporaryFd_ < 0) Fail(Reason(errno));
  temporary_ = name.data();
}

void AtomicFile::WriteAll(int fd, const std::string& bytes) {
  std::size_t done = 0;
  while (done < bytes.size()) {
    const ssize_t written = write(fd, bytes.data() + done, bytes.size() - done);
    if (written < 0 && errno == EINTR) continue;
    if (written <= 0) Fail(Reason(written < 0 ? errno : EIO));
    done += static_cast<std::size_t>(written);
  }
}

void AtomicFile::Commit() {
  const std::string bytes = std::move(content_).str();
  if (directFd_ >= 0) {
    WriteAll(directFd_, bytes);
    if (closeDirect_) {
      const int fd = std::exchange(directFd_, -1);
      if (close(fd) != 0) Fail(Reason(errno));
    }
    return;
  }
  WriteAll(temporaryFd_, bytes);
  if (fchmod(temporaryFd_, targetMode_) != 0 || fsync(temporaryFd_) != 0) Fail(Reason(errno));
  if (close(std::exchange(temporaryFd_, -1)) != 0) Fail(Reason(errno));
  if (std::rename(temporary_.c_str(), target_.c_str()) != 0) Fail(Reason(errno));
  temporary_.clear();
  SyncFolder(target_);
}

void AtomicFile::RemoveTemporary() {
  if (temporaryFd_ >= 0) close(std::exchange(temporaryFd_, -1));
  if (!temporary_.empty()) unlink(std::exchange(temporary_, {}).c_str());
}

void AtomicFile::Fail(const std::string& reason) {
  RemoveTemporary();
  const std::string what = path_ == "-" ? "the standard output" : "the file " + path_;
  throw FacilityError(errc::kFileWrite, "Cannot write " + what + ": " + reason);
}

}  // namespace gustline::wb
