// What the platform reads of one file, once it is open or looked at.
#pragma once

#include <sys/stat.h>

#include <cstdint>
#include <string>

#include "Platform/Platform.h"
#include "Platform/Posix/FileDescriptor.h"
#include "Platform/Records/ByteSource.h"

namespace trovex::posix {

// Status of what the program sees as `name`; false for what is neither file nor directory.
bool StatusOf(const struct stat& host, TextView name, FileStatus& status);

// Reads at offsets from an open file, which must outlive it.
class FileSource : public records::ByteSource {
 public:
  explicit FileSource(const FileDescriptor& file) : file_(file) {}
  std::size_t ReadAt(std::uint64_t offset, char* buffer, std::size_t size) override;
  // The errno of the last reading that failed, 0 if none did.
  int Error() const { return error_; }

 private:
  const FileDescriptor& file_;
  int error_ = 0;
};

// The same for a file that is its own.
class OwnedSource : public records::ByteSource {
 public:
  explicit OwnedSource(FileDescriptor file) : file_(std::move(file)) {}
  std::size_t ReadAt(std::uint64_t offset, char* buffer, std::size_t size) override {
    return source_.ReadAt(offset, buffer, size);
  }

 private:
  FileDescriptor file_;
  FileSource source_{file_};
};

// Appends what the file holds, at most records::kMaxProfile bytes, to `bytes`; 0, or the errno of
// the failure.
int ReadProfile(const FileDescriptor& file, std::string& bytes);

}  // namespace trovex::posix
