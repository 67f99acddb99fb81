// The files inside disc images that the program holds open.
#pragma once

#include <cstdint>
#include <map>
#include <memory>

#include "Image/Disc.h"
#include "Platform/Platform.h"

namespace trovex::image {

class OpenFiles {
 public:
  FileHandle Add(std::unique_ptr<FileContents> contents);
  // True for a handle that Add gave, closed or not.
  static bool IsOurs(FileHandle handle);
  // As Platform::Read: raises kDeviceIo where the image holds no more of the file, though its
  // length says so.
  std::size_t Read(FileHandle handle, void* buffer, std::size_t size);
  void Close(FileHandle handle) { files_.erase(handle); }

 private:
  struct Reader {
    std::unique_ptr<FileContents> contents;
    std::uint64_t place = 0;
  };

  std::map<FileHandle, Reader> files_;
  std::int64_t next_ = 1;
};

}  // namespace trovex::image
