// Disks with little room.
#pragma once

#include <signal.h>
#include <sys/resource.h>

#include <cstddef>
#include <filesystem>
#include <optional>

namespace trovex::test {

// No file of this process grows beyond `size` bytes for the life of the object; what does not fit
// is refused as by a full disk.
class FileSizeLimit {
 public:
  explicit FileSizeLimit(std::size_t size);
  ~FileSizeLimit();
  FileSizeLimit(const FileSizeLimit&) = delete;
  FileSizeLimit& operator=(const FileSizeLimit&) = delete;

 private:
  rlimit former_ = {};
  void (*former_action_)(int);
};

// For the life of the object an empty directory is a disk of its own with `size` bytes (whole
// pages). Only a privileged user may mount one; for anybody else files are limited to that size.
class SmallDisk {
 public:
  SmallDisk(std::filesystem::path directory, std::size_t size);
  ~SmallDisk();
  SmallDisk(const SmallDisk&) = delete;
  SmallDisk& operator=(const SmallDisk&) = delete;

 private:
  std::filesystem::path directory_;
  std::optional<FileSizeLimit> limit_;  // where nothing is mounted
};

}  // namespace trovex::test
