// A file that comes into being whole or not at all.
#pragma once

#include <string>
#include <string_view>

#include "Platform/Platform.h"

namespace trovex {

// Written beside the file whose place it takes when it is kept; else it goes with the object, and a
// former file stays as it was. `files` must outlive it.
class NewFile {
 public:
  // Raises as FilePort::OpenWrite.
  NewFile(FilePort& files, Text place);
  ~NewFile();
  NewFile(const NewFile&) = delete;
  NewFile& operator=(const NewFile&) = delete;

  // Raises as FilePort::Write.
  void Write(std::string_view bytes);
  // Raises as FilePort::Write, Close and PutInPlace; the file is not kept then.
  void Keep();

 private:
  void Flush();

  FilePort& files_;
  const Text place_;
  const Text name_;
  FileHandle handle_;
  std::string buffer_;
  bool kept_ = false;
};

}  // namespace trovex
