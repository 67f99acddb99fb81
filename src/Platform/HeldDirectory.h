// A directory in hand: its names, read at once, and its files, reached without looking for the way
// to them again. For whoever asks much of one directory, as a scan does.
#pragma once

#include <memory>
#include <string>

#include "Platform/Platform.h"

namespace trovex {

// One entry of a directory in hand.
struct ListedEntry {
  std::size_t number = 0;  // by which the directory knows it
  std::uint32_t attributes = 0;
  TextView name;  // as it stands on the disk; good for as long as the entries are
};

// What a directory held when it was read, "." and ".." left out. Never changes.
class DirectoryEntries {
 public:
  virtual ~DirectoryEntries() = default;

  // Steps through the entries in the order of a search: `place` is 0 at first and stands behind the
  // entry given afterwards. False, and `entry` untouched, at the end.
  virtual bool Next(std::size_t& place, ListedEntry& entry) const = 0;
  // The entry of that name, without regard to case; false, and `entry` untouched, if there is none.
  virtual bool Find(TextView name, ListedEntry& entry) const = 0;
};

// The operations on an entry do what those of the same name do with its full name, but reach it in
// the directory that was read, even if that has been renamed since. An entry that has gone counts
// as missing. The platform must outlive the object.
class HeldDirectory {
 public:
  virtual ~HeldDirectory() = default;

  // May be kept longer than the directory itself.
  virtual const std::shared_ptr<const DirectoryEntries>& Entries() const = 0;
  // False where the reading of the directory broke off, or an entry could not be looked at: more
  // may stand in it than its entries say.
  virtual bool IsWhole() const = 0;

  // A subdirectory; null as Platform::OpenDirectory.
  virtual std::shared_ptr<HeldDirectory> OpenDirectory(const ListedEntry& entry) = 0;
  virtual bool GetFileStatus(const ListedEntry& entry, FileStatus& status) = 0;
  // Closed, like any other, by Platform::Close.
  virtual FileHandle OpenRead(const ListedEntry& entry) = 0;
  virtual Reading GetFileProperties(const ListedEntry& entry, FileStatus& status,
                                    std::string& record) = 0;
  virtual int ExtractIconEx(const ListedEntry& entry, int index) = 0;
};

}  // namespace trovex
