#include "Platform/Posix/FileReads.h"

#include <unistd.h>

#include <cerrno>

#include "Platform/Posix/HostCalls.h"
#include "Platform/Posix/Listing.h"
#include "Platform/Posix/LocalDate.h"
#include "Platform/Records/ProfileFile.h"

namespace trovex::posix {
namespace {

constexpr std::size_t kProfilePiece = 4096;  // read at a time, a whole part of the most

}  // namespace

bool StatusOf(const struct stat& host, TextView name, FileStatus& status) {
  if (!S_ISREG(host.st_mode) && !S_ISDIR(host.st_mode)) return false;
  const bool file = S_ISREG(host.st_mode);
  status.attributes = AttributesOf(file ? EntryKind::kFile : EntryKind::kDirectory, name);
  if (file && (host.st_mode & kAnyWriteBit) == 0) status.attributes |= kAttributeReadOnly;
  status.length = file ? host.st_size : 0;
  status.modified = LocalDate(host.st_mtime);
  return true;
}

std::size_t FileSource::ReadAt(std::uint64_t offset, char* buffer, std::size_t size) {
  ssize_t got = 0;
  do {
    got = pread(file_.Get(), buffer, size, static_cast<off_t>(offset));
  } while (got < 0 && errno == EINTR);
  if (got < 0) error_ = errno;
  return got < 0 ? 0 : static_cast<std::size_t>(got);
}

int ReadProfile(const FileDescriptor& file, std::string& bytes) {
  if (!file.IsOpen()) return errno;
  char piece[kProfilePiece];
  while (bytes.size() < records::kMaxProfile) {
    const std::ptrdiff_t got = ReadFully(file.Get(), piece, sizeof piece);
    if (got < 0) return errno;
    bytes.append(piece, static_cast<std::size_t>(got));
    if (static_cast<std::size_t>(got) < sizeof piece) break;
  }
  return 0;
}

}  // namespace trovex::posix
