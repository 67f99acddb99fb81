// New contents for a file, written beside it and put in its place as a whole.
#pragma once

#include <string>

#include "Platform/Posix/FileDescriptor.h"
#include "Platform/Posix/Unfinished.h"

namespace trovex::posix {

// Until Commit has succeeded the file is as it was, and afterwards it is complete. A file that
// exists keeps its permissions; behind a link, the file that it leads to is replaced.
class Replacement {
 public:
  // `target`: absolute host path of a regular file or of none.
  explicit Replacement(std::string target) : target_(std::move(target)) {}
  ~Replacement();  // removes what was not committed
  Replacement(const Replacement&) = delete;
  Replacement& operator=(const Replacement&) = delete;

  // Each false with the reason in errno.
  bool Open();
  bool Write(const void* data, std::size_t size);
  bool Commit();

 private:
  bool FollowLink();

  std::string target_;
  std::string temporary_;
  FileDescriptor file_;
  Unfinished unfinished_;
};

}  // namespace trovex::posix
