// A directory of a disc image in hand, and what its entries answer.
#pragma once

#include "Image/Disc.h"
#include "Image/OpenFiles.h"
#include "Platform/HeldDirectory.h"

namespace trovex::image {

// What the operations of the port answer for one entry.
FileStatus StatusOf(Platform& platform, const Disc& disc, const Folder& folder, std::size_t number);
// Of the root, which has no entry.
FileStatus StatusOfRoot(Platform& platform, const Disc& disc);
// False where the file cannot be read; `record` is empty then, and where there is none, as in a
// directory.
bool ReadVersionRecord(const Disc& disc, const Folder& folder, std::size_t number,
                       std::string& record);
bool HoldsIcon(const Disc& disc, const Folder& folder, std::size_t number);
// The answer of GetPrivateProfileString where there is no such file.
std::uint32_t NoProfileString(const Text& fallback, Text& buffer, std::uint32_t size);
std::uint32_t ProfileStringOf(const Disc& disc, const Folder& folder, std::size_t number,
                              const Text& section, const Text& key, const Text& fallback,
                              Text& buffer, std::uint32_t size);
// Raises kPathFileAccess for a directory, kDeviceIo for what cannot be read.
std::unique_ptr<FileContents> ContentsOf(const Disc& disc, const Folder& folder,
                                         std::size_t number);

class FolderInHand : public HeldDirectory {
 public:
  // `files` takes what OpenRead opens; it and `platform`, which knows the local time, must outlive
  // the object.
  FolderInHand(Platform& platform, OpenFiles& files, std::shared_ptr<Disc> disc,
               std::shared_ptr<const Folder> folder);

  const std::shared_ptr<const DirectoryEntries>& Entries() const override { return entries_; }
  bool IsWhole() const override { return !folder_->directory->IsDamaged(); }
  std::shared_ptr<HeldDirectory> OpenDirectory(const ListedEntry& entry) override;
  bool GetFileStatus(const ListedEntry& entry, FileStatus& status) override;
  FileHandle OpenRead(const ListedEntry& entry) override;
  Reading GetFileProperties(const ListedEntry& entry, FileStatus& status,
                            std::string& record) override;
  int ExtractIconEx(const ListedEntry& entry, int index) override;

 private:
  Platform& platform_;
  OpenFiles& files_;
  std::shared_ptr<Disc> disc_;
  std::shared_ptr<const Folder> folder_;
  std::shared_ptr<const DirectoryEntries> entries_;
};

}  // namespace trovex::image
