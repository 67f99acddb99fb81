#include "support/Posix/FullDisk.h"

#include <sys/mount.h>

#include <string>

namespace trovex::test {

FileSizeLimit::FileSizeLimit(std::size_t size) : former_action_(signal(SIGXFSZ, SIG_IGN)) {
  getrlimit(RLIMIT_FSIZE, &former_);
  const rlimit limit = {size, former_.rlim_max};
  setrlimit(RLIMIT_FSIZE, &limit);
}

FileSizeLimit::~FileSizeLimit() {
  setrlimit(RLIMIT_FSIZE, &former_);
  signal(SIGXFSZ, former_action_);
}

SmallDisk::SmallDisk(std::filesystem::path directory, std::size_t size)
    : directory_(std::move(directory)) {
  const std::string options = "size=" + std::to_string(size);
  if (mount("trovex", directory_.c_str(), "tmpfs", 0, options.c_str()) != 0) limit_.emplace(size);
}

SmallDisk::~SmallDisk() {
  if (!limit_) umount2(directory_.c_str(), MNT_DETACH);
}

}  // namespace trovex::test
