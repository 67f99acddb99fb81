#include "Image/Directory.h"

#include <algorithm>
#include <array>
#include <limits>
#include <set>

#include "Image/Names.h"
#include "Platform/EntryNames.h"
#include "Platform/Platform.h"

namespace trovex::image {
namespace {

// A directory that says it is larger is read this far.
constexpr std::uint32_t kLargest = 64 << 20;
constexpr std::uint32_t kPiece = 16 * kSectorSize;  // read at a time
constexpr std::uint16_t kMostExtents = 4096;        // of a file
constexpr std::size_t kLongestName = 255;

}  // namespace

std::uint32_t AttributesOf(std::uint8_t flags) {
  std::uint32_t attributes = kAttributeReadOnly;
  if (flags & kRecordHidden) attributes |= kAttributeHidden;
  if (flags & kRecordDirectory) attributes |= kAttributeDirectory;
  return attributes;
}

// Puts the records of a directory into entries.
class Directory::Reader {
 public:
  Reader(Directory& directory, Format format) : directory_(directory), format_(format) {}

  // One sector's records. False where the directory turns out to be none, or to end before: a
  // directory begins with its record of itself, and a second one begins another directory.
  bool TakeSector(std::string_view bytes) {
    for (bool first = true; LengthOfRecord(bytes) > 0; first = false) {
      const auto record = ReadRecord(bytes, format_);
      if (first && record && (record->identifier == kSelf) == begun_) return false;
      if (!record) {
        directory_.damaged_ = true;
        return begun_;  // the next sector begins with a record of its own
      }
      begun_ = true;
      TakeRecord(*record);
      bytes.remove_prefix(LengthOfRecord(bytes));
    }
    return begun_;
  }
  bool HasBegun() const { return begun_; }

 private:
  void TakeRecord(const Record& record) {
    if (record.identifier == kSelf || record.identifier == kParent) return;
    if ((record.flags & kRecordAssociated) != 0) return;
    const bool continues = continued_ && record.identifier == identifier_;
    continued_ = (record.flags & kRecordContinues) != 0;
    if (continued_) identifier_ = record.identifier;
    if (continues) {
      AddExtent(record);
    } else {
      AddEntry(record);
    }
  }

  void AddEntry(const Record& record) {
    const Text name = NameText(record.identifier, format_);
    Entry entry;
    entry.name = static_cast<std::uint32_t>(directory_.names_.size());
    entry.length = static_cast<std::uint16_t>(std::min(name.size(), kLongestName));
    entry.first = {record.block, record.size};
    entry.date = record.date;
    entry.flags = record.flags;
    entry.interleaved = record.interleaved;
    directory_.names_.append(name, 0, entry.length);
    directory_.entries_.push_back(entry);
  }

  void AddExtent(const Record& record) {
    Entry& entry = directory_.entries_.back();
    if (entry.extents == kMostExtents) {
      directory_.damaged_ = true;
      return;
    }
    if (entry.extents++ == 1) entry.more = static_cast<std::uint32_t>(directory_.more_.size());
    directory_.more_.push_back({record.block, record.size});
  }

  Directory& directory_;
  const Format format_;
  bool begun_ = false;
  bool continued_ = false;
  std::string identifier_;  // of the file that goes on
};

std::shared_ptr<const Directory> Directory::Read(const Sectors& sectors, std::uint64_t place,
                                                 std::uint32_t size, Format format) {
  auto directory = std::make_shared<Directory>();
  Reader reader(*directory, format);
  const std::uint32_t end = std::min(size, kLargest);
  if (!ReadSectors(sectors, place, end, reader) || end < size) directory->damaged_ = true;
  directory->missing_ = !reader.HasBegun();
  directory->Arrange();
  return directory;
}

// False unless all of them could be read.
bool Directory::ReadSectors(const Sectors& sectors, std::uint64_t place, std::uint32_t size,
                            Reader& reader) {
  std::array<char, kPiece> piece;
  for (std::uint32_t at = 0; at < size;) {
    const std::uint32_t wanted = std::min(kPiece, size - at);
    const auto got = static_cast<std::uint32_t>(sectors.ReadAt(place + at, piece.data(), wanted));
    for (std::uint32_t sector = 0; sector < got; sector += kSectorSize) {
      const std::size_t held = std::min(kSectorSize, got - sector);
      if (!reader.TakeSector({&piece[sector], held})) return false;
    }
    if (got < wanted) return false;
    at += got;
  }
  return true;
}

void Directory::Arrange() {
  entries_.shrink_to_fit();
  const auto before = [this](const Entry& a, const Entry& b) {
    const int order = CompareNoCase(NameOf(a), NameOf(b));
    return order != 0 ? order < 0 : NameOf(a) < NameOf(b);
  };
  if (!std::is_sorted(entries_.begin(), entries_.end(), before)) {
    std::stable_sort(entries_.begin(), entries_.end(), before);
  }
  SeparateNames();
}

void Directory::SeparateNames() {
  const auto same = [this](const Entry& a, const Entry& b) {
    return CompareNoCase(NameOf(a), NameOf(b)) == 0;
  };
  if (std::adjacent_find(entries_.begin(), entries_.end(), same) == entries_.end()) return;
  std::set<Text> taken;
  for (const Entry& entry : entries_) taken.insert(ToUpper(NameOf(entry)));
  Text first;
  unsigned number = 1;
  for (std::size_t i = 0; i < entries_.size(); ++i) {
    const Text name(NameOf(entries_[i]));
    if (i == 0 || !EqualsNoCase(name, first)) {
      first = name;
      number = 1;
      continue;
    }
    Text shown;
    do {
      shown = NumberedName(name, ++number);
    } while (!taken.insert(ToUpper(shown)).second);
    entries_[i].name = static_cast<std::uint32_t>(names_.size());
    entries_[i].length = static_cast<std::uint16_t>(shown.size());
    names_ += shown;
  }
  std::sort(entries_.begin(), entries_.end(), [this](const Entry& a, const Entry& b) {
    return CompareNoCase(NameOf(a), NameOf(b)) < 0;
  });
}

ListedEntry Directory::Listed(std::size_t number) const {
  const Entry& entry = entries_[number];
  return {number, AttributesOf(entry.flags), NameOf(entry)};
}

bool Directory::Next(std::size_t& place, ListedEntry& entry) const {
  if (place >= entries_.size()) return false;
  entry = Listed(place++);
  return true;
}

bool Directory::Find(TextView name, ListedEntry& entry) const {
  const auto found = std::lower_bound(
      entries_.begin(), entries_.end(), name,
      [this](const Entry& e, TextView n) { return CompareNoCase(NameOf(e), n) < 0; });
  if (found == entries_.end() || CompareNoCase(NameOf(*found), name) != 0) return false;
  entry = Listed(static_cast<std::size_t>(found - entries_.begin()));
  return true;
}

std::vector<Extent> Directory::ExtentsOf(const Entry& entry) const {
  std::vector<Extent> extents{entry.first};
  const auto more = more_.begin() + entry.more;
  extents.insert(extents.end(), more, more + (entry.extents - 1));
  return extents;
}

std::uint64_t Directory::LengthOf(const Entry& entry) const {
  std::uint64_t length = 0;
  for (const Extent& extent : ExtentsOf(entry)) length += extent.size;
  return length;
}

}  // namespace trovex::image
