#include "Platform/Posix/ListedDirectory.h"

#include <fcntl.h>

#include <cerrno>

#include "Platform/Posix/Errors.h"
#include "Platform/Posix/FileReads.h"
#include "Platform/Records/IconResource.h"
#include "Platform/Records/VersionResource.h"

namespace trovex::posix {

std::shared_ptr<ListedDirectory> ListedDirectory::Read(FileTable& files, FileDescriptor directory) {
  auto listing = Listing::Read(directory);
  if (!listing) return nullptr;
  return std::make_shared<ListedDirectory>(files, std::move(directory), std::move(listing));
}

ListedDirectory::ListedDirectory(FileTable& files, FileDescriptor directory,
                                 std::shared_ptr<const Listing> listing)
    : files_(files),
      directory_(std::move(directory)),
      listing_(std::move(listing)),
      entries_(listing_) {}

std::shared_ptr<HeldDirectory> ListedDirectory::OpenDirectory(const ListedEntry& entry) {
  return Read(files_, OpenDirectoryAt(directory_.Get(), HostName(entry)));
}

bool ListedDirectory::GetFileStatus(const ListedEntry& entry, FileStatus& status) {
  struct stat host;
  return fstatat(directory_.Get(), HostName(entry), &host, 0) == 0 &&
         StatusOf(host, entry.name, status);
}

// The listing has told that this is a regular file: no further question, and should it have become
// a FIFO meanwhile, opening it does not wait.
FileDescriptor ListedDirectory::OpenFile(const ListedEntry& entry) const {
  const DirectoryEntry listed = listing_->At(entry.number);
  if (listed.kind != EntryKind::kFile) {
    errno = EISDIR;
    return FileDescriptor();
  }
  const int flags = O_RDONLY | O_NONBLOCK | O_CLOEXEC | O_NOCTTY;
  return FileDescriptor(openat(directory_.Get(), listed.host, flags));
}

FileHandle ListedDirectory::OpenRead(const ListedEntry& entry) {
  FileDescriptor file = OpenFile(entry);
  if (!file.IsOpen()) throw ErrorOf(errno);
  return files_.Add(std::move(file));
}

Reading ListedDirectory::GetFileProperties(const ListedEntry& entry, FileStatus& status,
                                           std::string& record) {
  record.clear();
  const FileDescriptor file = OpenFile(entry);
  struct stat host;
  // What cannot be opened may have a status all the same.
  if (!file.IsOpen()) return GetFileStatus(entry, status) ? Reading::kStatus : Reading::kNothing;
  if (fstat(file.Get(), &host) != 0 || !StatusOf(host, entry.name, status)) {
    return Reading::kNothing;
  }
  FileSource source(file);
  record = records::ReadVersionRecord(source);
  return source.Error() == 0 ? Reading::kAll : Reading::kStatus;
}

int ListedDirectory::ExtractIconEx(const ListedEntry& entry, int) {
  const FileDescriptor file = OpenFile(entry);
  if (!file.IsOpen()) return 0;
  FileSource source(file);
  return records::HoldsIcon(source) ? 1 : 0;
}

}  // namespace trovex::posix
