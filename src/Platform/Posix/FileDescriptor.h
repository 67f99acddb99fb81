// An owned file descriptor.
#pragma once

#include <unistd.h>

#include <utility>

namespace trovex::posix {

class FileDescriptor {
 public:
  explicit FileDescriptor(int fd = -1) : fd_(fd) {}
  ~FileDescriptor() { Reset(); }
  FileDescriptor(FileDescriptor&& other) noexcept : fd_(other.Release()) {}
  FileDescriptor& operator=(FileDescriptor&& other) noexcept {
    if (this != &other) {
      Reset();
      fd_ = other.Release();
    }
    return *this;
  }

  bool IsOpen() const { return fd_ >= 0; }
  int Get() const { return fd_; }
  int Release() { return std::exchange(fd_, -1); }

 private:
  void Reset() {
    if (fd_ >= 0) close(std::exchange(fd_, -1));
  }

  int fd_;
};

}  // namespace trovex::posix
