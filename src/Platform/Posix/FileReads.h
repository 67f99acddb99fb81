// What the platform reads of one file, once it is open or looked at.
#pragma once

#include <sys/stat.h>

#include <cstdint>
#include <string>

#include "Platform/Platform.h"
#include "Platform/Posix/FileDescriptor.h"
#include "Platform/Posix/VersionResource.h"

namespace trovex::posix {

// Status of what the program sees as `name`; false for what is neither file nor directory.
bool StatusOf(const struct stat& host, TextView name, FileStatus& status);

// Reads at offsets from an open file, which must outlive it.
class FileSource : public ByteSource {
 public:
  explicit FileSource(const FileDescriptor& file) : file_(file) {}
  std::size_t ReadAt(std::uint64_t offset, char* buffer, std::size_t size) override;

 private:
  const FileDescriptor& file_;
};

// What stands behind this in a profile file is not read, and a longer file is not written.
inline constexpr std::size_t kMaxProfile = 1 << 20;

// Appends what the file holds to `bytes`; 0, or the errno of the failure.
int ReadProfile(const FileDescriptor& file, std::string& bytes);

// The answer of GetPrivateProfileString where the file holds `bytes`; a file without any stands for
// one that is missing.
std::uint32_t ProfileAnswer(const std::string& bytes, const Text& section, const Text& key,
                            const Text& fallback, Text& buffer, std::uint32_t size);

}  // namespace trovex::posix
