// The one place that knows host paths: finds what a name of the program stands for.
#pragma once

#include <list>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>

#include "Platform/Posix/Drives.h"
#include "Platform/Posix/Listing.h"

namespace trovex::posix {

// Where a name leads.
struct Place {
  EntryKind kind = EntryKind::kMissing;
  // True where `kind` and `host` come from memory. The use of the place verifies them: if it finds
  // nothing there, the caller forgets all and looks again.
  bool hinted = false;
  Text name;         // of the last level, as it stands on the disk; empty for a root
  std::string host;  // host path; where the kind is kMissing, that of a new file of this name
};

// A directory that was reached, with its last listing, if that is still held.
struct KnownDirectory {
  Text name;         // whole and upper-cased
  std::string host;  // host path, empty for the host's root
  std::shared_ptr<const Listing> listing;
};

// A bounded number of directories, the least recently used ones dropped first.
class DirectoryHints {
 public:
  // Null where the directory is not held. The pointer is good until the next Put or Clear.
  KnownDirectory* Find(TextView upper_name);
  KnownDirectory* Put(TextView upper_name, std::string host);
  // The one that Find or Put gave last; it is held until the next of these calls, or Clear.
  KnownDirectory& Latest() { return directories_.front(); }
  // Replaces the listing of a directory that is held, and drops others where they get too many.
  void SetListing(KnownDirectory& directory, std::shared_ptr<const Listing> listing);
  void Clear();

 private:
  void Shrink();

  std::list<KnownDirectory> directories_;  // most recently used first
  std::unordered_map<TextView, std::list<KnownDirectory>::iterator> by_name_;
  std::size_t entries_ = 0;  // of all listings held
};

class Names {
 public:
  explicit Names(const Drives& drives) : drives_(drives) {}

  // The place of a name; nothing where the directory that should hold it is missing or out of
  // reach, with the reason in errno: ENOTDIR where a level is missing, ENOENT for an empty name.
  std::optional<Place> Find(const Text& name);
  // A directory read afresh, and whether it is a drive's root; null with the reason in errno.
  std::shared_ptr<const Listing> List(const Text& directory, bool& root);
  // The name by which the program reaches `path`, an absolute host path, on a drive whose root is
  // in front of it. Levels that are missing keep their spelling.
  Text NameOfHost(const Drive& drive, const std::string& path);
  void Forget();

 private:
  // A whole name in both spellings; positions are the same.
  struct Spelling {
    TextView given, upper;
    Spelling Head(std::size_t end) const { return {given.substr(0, end), upper.substr(0, end)}; }
  };

  std::optional<Place> FindBeside(TextView name);
  std::optional<Place> Walk(Spelling name);
  std::shared_ptr<const Listing> ListOnce(Spelling directory);
  KnownDirectory* Enter(Spelling directory);
  std::optional<Place> Look(KnownDirectory& directory, Spelling level);
  Place PlaceOf(const KnownDirectory& directory, const DirectoryEntry& entry) const;
  std::shared_ptr<const Listing> Read(KnownDirectory& directory);

  const Drives& drives_;
  DirectoryHints hints_;
  // The directory of the name found last, as that name spelled it, with its final backslash; empty
  // where it is not held any more. What a scan asks for mostly lies there.
  Text last_directory_;
  // True after a directory that was reached was no longer there: a hint led astray.
  bool hint_failed_ = false;
};

}  // namespace trovex::posix
