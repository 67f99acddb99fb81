// The directory in hand of a platform that has no better way: every operation goes by full name.
#include <algorithm>
#include <vector>

#include "Platform/EntryNames.h"
#include "Platform/HeldDirectory.h"

namespace trovex {
namespace {

// Entries in the order of their coming, their names in one piece.
class FoundEntries : public DirectoryEntries {
 public:
  void Add(const FindData& data) {
    entries_.push_back({names_.size(), data.attributes});
    names_ += data.name;
  }

  // Once all have come.
  void Sort() {
    sorted_.resize(entries_.size());
    for (std::size_t i = 0; i < sorted_.size(); ++i) sorted_[i] = i;
    std::sort(sorted_.begin(), sorted_.end(),
              [&](std::size_t a, std::size_t b) { return CompareNoCase(Name(a), Name(b)) < 0; });
  }

  bool Next(std::size_t& place, ListedEntry& entry) const override {
    if (place >= entries_.size()) return false;
    entry = At(place++);
    return true;
  }

  bool Find(TextView name, ListedEntry& entry) const override {
    const auto found = std::lower_bound(
        sorted_.begin(), sorted_.end(), name,
        [&](std::size_t i, TextView wanted) { return CompareNoCase(Name(i), wanted) < 0; });
    if (found == sorted_.end() || CompareNoCase(Name(*found), name) != 0) return false;
    entry = At(*found);
    return true;
  }

 private:
  struct Entry {
    std::size_t begin;  // of the name in names_
    std::uint32_t attributes;
  };

  TextView Name(std::size_t i) const {
    const std::size_t end = i + 1 < entries_.size() ? entries_[i + 1].begin : names_.size();
    return TextView(names_).substr(entries_[i].begin, end - entries_[i].begin);
  }
  ListedEntry At(std::size_t i) const { return {i, entries_[i].attributes, Name(i)}; }

  Text names_;
  std::vector<Entry> entries_;
  std::vector<std::size_t> sorted_;
};

// Closes a search, however it ends.
class Closing {
 public:
  Closing(Platform& platform, FindHandle search) : platform_(platform), search_(search) {}
  ~Closing() { platform_.FindClose(search_); }
  Closing(const Closing&) = delete;
  Closing& operator=(const Closing&) = delete;

 private:
  Platform& platform_;
  FindHandle search_;
};

class PathDirectory : public HeldDirectory {
 public:
  // `directory` with its final backslash; nothing is read yet.
  PathDirectory(Platform& platform, Text directory)
      : platform_(platform), directory_(std::move(directory)) {}

  // False where it is missing or unreadable. A search that breaks off, as on a scratched disc,
  // gives what was readable.
  bool Read() {
    auto entries = std::make_shared<FoundEntries>();
    bool there = true;
    try {
      there = TakeAll(*entries);
    } catch (const RuntimeError&) {
      whole_ = false;
    }
    entries->Sort();
    entries_ = std::move(entries);
    return there;
  }

  const std::shared_ptr<const DirectoryEntries>& Entries() const override { return entries_; }
  bool IsWhole() const override { return whole_; }

  std::shared_ptr<HeldDirectory> OpenDirectory(const ListedEntry& entry) override {
    return platform_.OpenDirectory(NameOf(entry));
  }
  bool GetFileStatus(const ListedEntry& entry, FileStatus& status) override {
    return platform_.GetFileStatus(NameOf(entry), status);
  }
  FileHandle OpenRead(const ListedEntry& entry) override {
    return platform_.OpenRead(NameOf(entry));
  }
  Reading GetFileProperties(const ListedEntry& entry, FileStatus& status,
                            std::string& record) override {
    return platform_.GetFileProperties(NameOf(entry), status, record);
  }
  int ExtractIconEx(const ListedEntry& entry, int index) override {
    return platform_.ExtractIconEx(NameOf(entry), index, IconOwner::kDisc);
  }

 private:
  bool TakeAll(FoundEntries& entries) {
    FindData data;
    const FindHandle search = platform_.FindFirstFile(directory_ + u"*.*", data);
    if (search == FindHandle::kInvalid) return IsEmptyRoot();
    const Closing closing(platform_, search);
    do {
      if (data.name != u"." && data.name != u"..") entries.Add(data);
    } while (platform_.FindNextFile(search, data));
    return true;
  }

  // After a search that found nothing: a root has no entries of its own, so an empty one finds
  // none.
  bool IsEmptyRoot() {
    return directory_.size() == 3 && directory_[1] == u':' && platform_.CanBeListed(directory_);
  }

  Text NameOf(const ListedEntry& entry) const { return directory_ + Text(entry.name); }

  Platform& platform_;
  Text directory_;
  bool whole_ = true;
  std::shared_ptr<const DirectoryEntries> entries_;
};

}  // namespace

std::shared_ptr<HeldDirectory> Platform::OpenDirectory(const Text& directory) {
  if (directory.empty()) return nullptr;  // a search would look at the root
  Text path = directory;
  if (!path.ends_with(u'\\')) path += u'\\';
  auto held = std::make_shared<PathDirectory>(*this, std::move(path));
  return held->Read() ? held : nullptr;
}

}  // namespace trovex
