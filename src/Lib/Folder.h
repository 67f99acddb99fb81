// A directory under its name, in hand where it could be read, and the files that lie in it. Whoever
// walks, analyses or shows a directory passes it on, so that it is opened and listed once.
#pragma once

#include "Platform/HeldDirectory.h"

namespace trovex {

class Folder {
 public:
  // Reads the directory through the current platform.
  explicit Folder(const Text& name);

  // The name as it was given, and that of a file in it.
  const Text& Name() const { return name_; }
  Text NameOf(TextView file) const;
  // Null where the directory is missing or cannot be read.
  const DirectoryEntries* Entries() const { return entries_.get(); }
  // False where it is missing or cannot be read, and where its reading broke off.
  bool IsWhole() const { return whole_; }

  // A subdirectory, opened from this one, under the name given.
  Folder Below(const ListedEntry& entry, const Text& name) const;
  // Closes the directory and keeps its entries: what is asked for afterwards goes by name.
  void Release() { held_ = nullptr; }

  // As bFichierExiste, for a plain name.
  bool HasFile(TextView file) const;

 private:
  friend class FileInHand;
  Folder(const Text& name, std::shared_ptr<HeldDirectory> held);

  Text name_;
  std::shared_ptr<HeldDirectory> held_;
  std::shared_ptr<const DirectoryEntries> entries_;
  bool whole_;
};

// A file that is meant by its full name, or that lies in a folder. Where the folder is in hand the
// file is reached through it; and whatever fails on a file that is listed there is noted as unread.
class FileInHand {
 public:
  // Reached by its name alone.
  FileInHand(Text full_name) : full_name_(std::move(full_name)) {}
  FileInHand(const char16_t* full_name) : full_name_(full_name) {}
  // The file of a plain name; folder and name must outlive this object.
  FileInHand(const Folder& folder, TextView name);
  // The file of that full name, in hand if it lies in the folder, which may be null and must
  // outlive this object.
  FileInHand(const Folder* folder, Text full_name);

  // The full name.
  Text Name() const { return folder_ != nullptr ? folder_->NameOf(name_) : full_name_; }
  bool IsBlank() const { return folder_ == nullptr && Trimmed(full_name_).empty(); }
  // As bFichierExiste.
  bool Exists() const;

  // The operations of the platform that bear these names.
  bool GetFileStatus(FileStatus& status) const;
  FileHandle OpenRead() const;
  Reading GetFileProperties(FileStatus& status, std::string& record) const;
  int ExtractIconEx(int index) const;

  // For whoever meets a failure while it reads what OpenRead has opened.
  void NoteUnread() const;

 private:
  Text full_name_;
  const Folder* folder_ = nullptr;  // null where the file goes by its full name
  TextView name_;                   // in the folder
  HeldDirectory* held_ = nullptr;   // null where the file is not listed
  ListedEntry entry_;
};

}  // namespace trovex
