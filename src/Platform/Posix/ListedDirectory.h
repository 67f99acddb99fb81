// A directory in hand, open for as long as it is held: its files are reached relative to it.
#pragma once

#include "Platform/HeldDirectory.h"
#include "Platform/Posix/FileDescriptor.h"
#include "Platform/Posix/FileTable.h"
#include "Platform/Posix/Listing.h"

namespace trovex::posix {

class ListedDirectory : public HeldDirectory {
 public:
  // Reads the open directory; null with the reason in errno. `files` takes what OpenRead opens.
  static std::shared_ptr<ListedDirectory> Read(FileTable& files, FileDescriptor directory);

  ListedDirectory(FileTable& files, FileDescriptor directory,
                  std::shared_ptr<const Listing> listing);

  const std::shared_ptr<const DirectoryEntries>& Entries() const override { return entries_; }
  bool IsWhole() const override { return listing_->IsWhole(); }
  std::shared_ptr<HeldDirectory> OpenDirectory(const ListedEntry& entry) override;
  bool GetFileStatus(const ListedEntry& entry, FileStatus& status) override;
  FileHandle OpenRead(const ListedEntry& entry) override;
  Reading GetFileProperties(const ListedEntry& entry, FileStatus& status,
                            std::string& record) override;
  int ExtractIconEx(const ListedEntry& entry, int index) override;

 private:
  const char* HostName(const ListedEntry& entry) const { return listing_->At(entry.number).host; }
  // Not open, with the reason in errno, for anything but a file.
  FileDescriptor OpenFile(const ListedEntry& entry) const;

  FileTable& files_;
  FileDescriptor directory_;
  std::shared_ptr<const Listing> listing_;
  std::shared_ptr<const DirectoryEntries> entries_;
};

}  // namespace trovex::posix
