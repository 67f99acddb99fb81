// What a directory holds, as the program sees it.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "Platform/HeldDirectory.h"
#include "Platform/Posix/FileDescriptor.h"

namespace trovex::posix {

enum class EntryKind : std::uint8_t {
  kMissing,
  kFile,       // a regular file or a link to one
  kDirectory,  // itself, no link to one
  kOther,      // whatever the program must not see nor open, but must not overwrite either
};

struct DirectoryEntry {
  EntryKind kind = EntryKind::kMissing;
  TextView name;     // as the program sees it
  const char* host;  // its bytes on the host
};

// An immutable snapshot of one directory, in ascending order of the upper-cased names, compared
// code unit by code unit. No two names are the same without regard to case: of names that differ
// only in case the first keeps its own, the others show as stem~2.ext, stem~3.ext...
class Listing : public DirectoryEntries {
 public:
  // Reads an open directory. Null with the reason in errno.
  static std::shared_ptr<const Listing> Read(const FileDescriptor& directory);
  // Reads a directory that is no link. Null with the reason in errno.
  static std::shared_ptr<const Listing> Read(const std::string& host);

  // False where the reading broke off before the end, and where an entry or what a link leads to
  // could not be looked at.
  bool IsWhole() const { return whole_; }
  // Entries of every kind; those of kind kOther come with the others.
  std::size_t Count() const { return records_.size(); }
  DirectoryEntry At(std::size_t index) const;
  // The entry of a name, in either case.
  std::optional<DirectoryEntry> Find(TextView name) const;
  // The entry with these bytes as its name on the host.
  std::optional<DirectoryEntry> FindHost(std::string_view host_name) const;

  // Without those of kind kOther; numbers are those of At.
  bool Next(std::size_t& place, ListedEntry& entry) const override;
  bool Find(TextView name, ListedEntry& entry) const override;

 private:
  // Names lie end to end in two buffers, so that a listing costs few allocations.
  struct Record {
    std::uint64_t key = 0;  // of the name, settles most comparisons
    std::uint32_t text = 0, host = 0;
    std::uint16_t length = 0;
    EntryKind kind = EntryKind::kMissing;
  };

  void Reserve();
  void Add(std::string_view host_name, EntryKind kind);
  void Arrange();
  void PutPlainNames();
  void PutShownNames();
  void Sort();
  void SeparateNames();
  void Rename(Record& record, const Text& name);
  // Place of the name in records_, Count() if it is not there.
  std::size_t PlaceOf(TextView name) const;
  // Orders a record against a name, given with its key, without regard to case.
  int Compare(const Record& record, std::uint64_t key, TextView name) const;
  ListedEntry Listed(std::size_t index) const;
  TextView Name(const Record& record) const;

  std::vector<Record> records_;
  Text names_;
  std::string host_names_;
  bool whole_ = true;
  bool plain_ = true;  // every host name is ASCII and shows as it is
};

// Opens a directory that is no link, by its name in an open one; not open, with the reason in
// errno, for anything else.
FileDescriptor OpenDirectoryAt(int parent, const char* name);
// The same for a host path of any length, empty for the host's root.
FileDescriptor OpenDirectory(const std::string& host);

// What a search tells of an entry.
std::uint32_t AttributesOf(EntryKind kind, TextView name);

// What a host name looks like to the program, and the host name for a new file of that name. A
// backslash in a host name shows as U+F05C, since it would read as a separator.
Text ShownName(std::string_view host_name);
std::string NewHostName(TextView name);

// True if a name hides its entry: it begins with a point.
inline bool IsHiddenName(TextView name) {
  return name.starts_with(u'.');
}

// The kind of an entry found by its host path; kMissing where there is none.
EntryKind KindOfHost(const std::string& path);

}  // namespace trovex::posix
