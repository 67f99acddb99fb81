// One directory of a volume, read at once.
#pragma once

#include <cstdint>
#include <memory>
#include <vector>

#include "Image/Record.h"
#include "Image/Sectors.h"
#include "Platform/HeldDirectory.h"

namespace trovex::image {

// A piece of a file.
struct Extent {
  std::uint32_t block = 0;
  std::uint32_t size = 0;  // in bytes
};

// The attribute word of an entry whose record has these flags.
std::uint32_t AttributesOf(std::uint8_t flags);

// Files and subdirectories in ascending order of their upper-cased names. Of names that are the
// same without regard to case the first on the disc keeps its own, the others show as stem~2.ext,
// stem~3.ext...: an older version of a file, too, can be reached.
class Directory : public DirectoryEntries {
 public:
  struct Entry {
    std::uint32_t name = 0;  // place in the names
    std::uint32_t more = 0;  // place of its further extents
    Extent first;
    std::uint16_t length = 0;   // of the name
    std::uint16_t extents = 1;  // all of them
    RecordDate date = {};
    std::uint8_t flags = 0;
    bool interleaved = false;  // its data cannot be read
  };

  // Never null; empty and damaged where nothing can be read.
  static std::shared_ptr<const Directory> Read(const Sectors& sectors, std::uint64_t place,
                                               std::uint32_t size, Format format);

  bool Next(std::size_t& place, ListedEntry& entry) const override;
  bool Find(TextView name, ListedEntry& entry) const override;

  std::size_t Count() const { return entries_.size(); }
  const Entry& At(std::size_t number) const { return entries_[number]; }
  std::vector<Extent> ExtentsOf(const Entry& entry) const;
  std::uint64_t LengthOf(const Entry& entry) const;

  // True where something of the directory could not be read: it lies behind the end of the image,
  // is malformed or larger than any directory.
  bool IsDamaged() const { return damaged_; }
  // True where not even its record of itself stands there.
  bool IsMissing() const { return missing_; }

 private:
  class Reader;

  static bool ReadSectors(const Sectors& sectors, std::uint64_t place, std::uint32_t size,
                          Reader& reader);
  TextView NameOf(const Entry& entry) const {
    return TextView(names_).substr(entry.name, entry.length);
  }
  ListedEntry Listed(std::size_t number) const;
  void Arrange();
  void SeparateNames();

  Text names_;
  std::vector<Entry> entries_;
  std::vector<Extent> more_;
  bool damaged_ = false;
  bool missing_ = false;
};

}  // namespace trovex::image
