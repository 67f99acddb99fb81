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
  enum class Level { kRoot, kBelow };
  static std::shared_ptr<ListedDirectory> Read(FileTable& files, FileDescriptor directory,
                                               Level level);

  ListedDirectory(FileTable& files, FileDescriptor directory, Level level,
                  std::shared_ptr<const Listing> listing);

  const std::shared_ptr<const DirectoryEntries>& Entries() const override { return entries_; }
  bool HasDots() const override { return level_ == Level::kBelow; }
  std::shared_ptr<HeldDirectory> OpenDirectory(const ListedEntry& entry) override;
  bool GetFileStatus(const ListedEntry& entry, FileStatus& status) override;
  FileHandle OpenRead(const ListedEntry& entry) override;
  bool GetFileProperties(const ListedEntry& entry, FileStatus& status,
                         std::string& record) override;
  std::uint32_t GetPrivateProfileString(const Text& section, const Text& key, const Text& fallback,
                                        Text& buffer, std::uint32_t size,
                                        const ListedEntry& entry) override;

 private:
  const char* HostName(const ListedEntry& entry) const { return listing_->At(entry.number).host; }
  // Not open, with the reason in errno, for anything but a file.
  FileDescriptor OpenFile(const ListedEntry& entry) const;

  FileTable& files_;
  FileDescriptor directory_;
  Level level_;
  std::shared_ptr<const Listing> listing_;
  std::shared_ptr<const DirectoryEntries> entries_;
};

}  // namespace trovex::posix
