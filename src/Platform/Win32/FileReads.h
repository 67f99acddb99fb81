// What the platform reads of one file, once it is open. A header without <windows.h>.
#pragma once

#include "Platform/Platform.h"
#include "Platform/Records/ByteSource.h"
#include "Platform/Win32/Handles.h"

namespace trovex {

// Opens for reading, shared. Raises as Platform::OpenRead.
OwnedFile OpenForReading(const Text& name);

// Status of an open file.
bool StatusOf(void* file, FileStatus& status);

// Reads at offsets from an open file, which must outlive it.
class FileSource : public records::ByteSource {
 public:
  explicit FileSource(void* file) : file_(file) {}
  std::size_t ReadAt(std::uint64_t offset, char* buffer, std::size_t size) override;
  // The system's code for the last reading that failed, 0 if none did.
  std::uint32_t Error() const { return error_; }

 private:
  void* file_;
  std::uint32_t error_ = 0;
};

}  // namespace trovex
