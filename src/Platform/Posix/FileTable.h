// The files that the program holds open.
#pragma once

#include <cstdint>
#include <unordered_map>

#include "Platform/Platform.h"
#include "Platform/Posix/FileDescriptor.h"

namespace trovex::posix {

class FileTable {
 public:
  FileHandle Add(FileDescriptor file) {
    const auto handle = static_cast<FileHandle>(next_++);
    files_.emplace(handle, std::move(file));
    return handle;
  }

  // -1, which every system call refuses, where the handle is none of ours.
  int Get(FileHandle handle) const {
    const auto found = files_.find(handle);
    return found == files_.end() ? -1 : found->second.Get();
  }

  // Takes the file out of the table; not open where the handle is none of ours.
  FileDescriptor Take(FileHandle handle) {
    const auto found = files_.find(handle);
    if (found == files_.end()) return FileDescriptor();
    FileDescriptor file = std::move(found->second);
    files_.erase(found);
    return file;
  }

 private:
  std::unordered_map<FileHandle, FileDescriptor> files_;
  std::int64_t next_ = 1;
};

}  // namespace trovex::posix
