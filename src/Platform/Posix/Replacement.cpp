#include "Platform/Posix/Replacement.h"

#include <fcntl.h>
#include <limits.h>
#include <sys/stat.h>

#include <cerrno>

#include "Platform/Posix/HostCalls.h"

namespace trovex::posix {
namespace {

constexpr int kMaxNames = 100;

std::string TemporaryBeside(const std::string& target, int number) {
  return target.substr(0, target.rfind('/') + 1) + ".trovex-" + std::to_string(getpid()) + '-' +
         std::to_string(number) + ".tmp";
}

}  // namespace

Replacement::~Replacement() {
  if (!temporary_.empty()) UnlinkHost(temporary_);
}

bool Replacement::Open() {
  struct stat status;
  const bool exists = StatHost(target_, status);
  if (!exists && errno != ENOENT) return false;
  if (exists && !MayWriteHost(target_, status)) return false;
  if (exists && !FollowLink()) return false;
  for (int number = 0; number < kMaxNames; ++number) {
    const std::string name = TemporaryBeside(target_, number);
    const SignalsHeld held;
    file_ = OpenHostPath(name, O_WRONLY | O_CREAT | O_EXCL);
    if (file_.IsOpen()) {
      temporary_ = name;
      unfinished_ = Unfinished(file_, name);
      return !exists || fchmod(file_.Get(), status.st_mode & 07777) == 0;
    }
    if (errno != EEXIST) return false;
  }
  return false;
}

bool Replacement::FollowLink() {
  struct stat status;
  if (!StatHostLink(target_, status)) return false;
  if (!S_ISLNK(status.st_mode)) return true;
  const FileDescriptor file = OpenHostPath(target_, O_PATH);
  if (!file.IsOpen()) return false;
  char real[PATH_MAX];
  const std::string link = "/proc/self/fd/" + std::to_string(file.Get());
  const ssize_t length = readlink(link.c_str(), real, sizeof real);
  if (length <= 0 || length == ssize_t{sizeof real}) {
    errno = ENAMETOOLONG;
    return false;
  }
  target_.assign(real, static_cast<std::size_t>(length));
  return true;
}

bool Replacement::Write(const void* data, std::size_t size) {
  return WriteFully(file_.Get(), data, size);
}

bool Replacement::Commit() {
  if (close(file_.Release()) != 0 && errno != EINTR) return false;
  const SignalsHeld held;
  if (!RenameHost(temporary_, target_)) return false;
  temporary_.clear();
  unfinished_ = {};
  return true;
}

}  // namespace trovex::posix
