#include "Platform/Posix/HostCalls.h"

#include <fcntl.h>
#include <limits.h>
#include <stdio.h>

#include <cerrno>

namespace trovex::posix {
namespace {

constexpr std::size_t kLongestPath = PATH_MAX - 1;

// A path as the ...at() calls want it: a directory and a rest that is short enough.
class HostPath {
 public:
  explicit HostPath(const std::string& path) : rest_(path.c_str()) {
    for (std::size_t left = path.size(); left > kLongestPath;) {
      const std::size_t begin = path.size() - left;
      const std::size_t end = path.rfind('/', begin + kLongestPath);
      if (end == std::string::npos || end <= begin || !Enter(path.substr(begin, end - begin))) {
        broken_ = true;
        return;
      }
      rest_ = path.c_str() + end + 1;
      left = path.size() - end - 1;
    }
  }

  bool Broken() const { return broken_; }
  int Directory() const { return directory_.IsOpen() ? directory_.Get() : AT_FDCWD; }
  const char* Rest() const { return rest_; }

 private:
  bool Enter(const std::string& piece) {
    FileDescriptor next(
        openat(Directory(), piece.c_str(), O_PATH | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC));
    directory_ = std::move(next);
    return directory_.IsOpen();
  }

  FileDescriptor directory_;
  const char* rest_;
  bool broken_ = false;
};

bool Stat(const std::string& path, struct stat& status, int flags) {
  const HostPath at(path);
  return !at.Broken() && fstatat(at.Directory(), at.Rest(), &status, flags) == 0;
}

}  // namespace

FileDescriptor OpenHostPath(const std::string& path, int flags, mode_t mode) {
  const HostPath at(path);
  if (at.Broken()) return FileDescriptor();
  return FileDescriptor(openat(at.Directory(), at.Rest(), flags | O_CLOEXEC | O_NOCTTY, mode));
}

bool StatHost(const std::string& path, struct stat& status) {
  return Stat(path, status, 0);
}

bool StatHostLink(const std::string& path, struct stat& status) {
  return Stat(path, status, AT_SYMLINK_NOFOLLOW);
}

bool MayWriteHost(const std::string& path, const struct stat& status) {
  errno = EACCES;
  if ((status.st_mode & kAnyWriteBit) == 0) return false;
  const HostPath at(path);
  return !at.Broken() && faccessat(at.Directory(), at.Rest(), W_OK, AT_EACCESS) == 0;
}

bool UnlinkHost(const std::string& path) {
  const HostPath at(path);
  return !at.Broken() && unlinkat(at.Directory(), at.Rest(), 0) == 0;
}

bool MakeHostDirectory(const std::string& path) {
  const HostPath at(path);
  return !at.Broken() && mkdirat(at.Directory(), at.Rest(), 0777) == 0;
}

bool RenameHost(const std::string& from, const std::string& to) {
  const HostPath source(from), target(to);
  if (source.Broken() || target.Broken()) return false;
  return renameat(source.Directory(), source.Rest(), target.Directory(), target.Rest()) == 0;
}

FileDescriptor OpenHostFile(const std::string& path) {
  const HostPath at(path);
  struct stat status;
  if (at.Broken() || fstatat(at.Directory(), at.Rest(), &status, 0) != 0) return FileDescriptor();
  if (!S_ISREG(status.st_mode)) {
    errno = S_ISDIR(status.st_mode) ? EISDIR : ENXIO;
    return FileDescriptor();
  }
  const int flags = O_RDONLY | O_NONBLOCK | O_CLOEXEC | O_NOCTTY;
  return FileDescriptor(openat(at.Directory(), at.Rest(), flags));
}

std::ptrdiff_t ReadFully(int fd, void* buffer, std::size_t size) {
  std::size_t done = 0;
  while (done < size) {
    const ssize_t got = read(fd, static_cast<char*>(buffer) + done, size - done);
    if (got < 0 && errno == EINTR) continue;
    if (got < 0) return -1;
    if (got == 0) break;
    done += static_cast<std::size_t>(got);
  }
  return static_cast<std::ptrdiff_t>(done);
}

bool WriteFully(int fd, const void* data, std::size_t size) {
  std::size_t done = 0;
  while (done < size) {
    const ssize_t put = write(fd, static_cast<const char*>(data) + done, size - done);
    if (put < 0 && errno == EINTR) continue;
    if (put < 0) return false;
    done += static_cast<std::size_t>(put);
  }
  return true;
}

}  // namespace trovex::posix
