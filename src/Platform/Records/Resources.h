// The resources of the two kinds of Windows executables, found through bounded reading. Every count
// and offset is a stranger's: what leads out of the file, or further than a limit, counts as
// missing.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

#include "Platform/Records/ByteReader.h"

namespace trovex::records {

// Types of resources.
inline constexpr std::uint16_t kIconType = 3;
inline constexpr std::uint16_t kIconGroupType = 14;
inline constexpr std::uint16_t kVersionType = 16;

// Where the bytes of a resource stand, as the file says; that they are there is not told.
struct Extent {
  std::uint64_t offset = 0;
  std::uint64_t size = 0;
};

// Of a 16-bit program. `header` is the offset of its new header, behind that of MS-DOS.
class NeResources {
 public:
  NeResources(ByteReader& file, std::uint64_t header);

  // The first resource of a type, and the one of a type and number; nothing where several have it.
  std::optional<Extent> First(std::uint16_t type) const;
  std::optional<Extent> Numbered(std::uint16_t type, std::uint16_t number) const;
  // True if the table comes to its end inside the file and before the names that follow it, and has
  // one run of icons and one of groups at most: then every reader finds the same resources in it.
  bool IsWhole() const;

 private:
  struct Entries {
    std::uint64_t at = 0;
    std::size_t count = 0;
  };
  Entries EntriesOf(std::uint16_t type) const;
  std::optional<Extent> EntryAt(std::uint64_t at) const;

  ByteReader& file_;
  std::uint64_t table_ = 0;  // 0 where the program has none
  std::uint64_t names_ = 0;  // the names behind it
  unsigned shift_ = 0;       // offsets and lengths count in units of 1 << shift
};

// Of a 32-bit or 64-bit program; likewise.
class PeResources {
 public:
  PeResources(ByteReader& file, std::uint64_t header);

  // Of the first name, and of that number.
  std::optional<Extent> First(std::uint16_t type) const;
  std::optional<Extent> Numbered(std::uint16_t type, std::uint16_t number) const;
  // True if the contents of all sections are there and begin where a sector does, the resources
  // stand at the beginning of one of them, and what leads to icons is in order: then every reader
  // takes the same bytes for them.
  bool IsWhole() const;

 private:
  struct Section {
    std::uint32_t address, size, raw, flags;
  };

  bool ReadOptionalHeader(std::uint64_t at, std::size_t size);
  bool ReadSections(std::uint64_t at, std::size_t count);
  bool SectionsAreWhole() const;
  // True if a table's entries are all there, named ones before numbered ones, these ascending.
  bool IsOrdered(std::optional<std::uint32_t> table) const;
  // Where an address of the loaded program lies in the file.
  std::optional<std::uint64_t> OffsetOf(std::uint32_t address) const;
  // Each gives what the entry leads to, counted from the root table.
  std::optional<std::uint32_t> FirstIn(std::uint32_t table) const;
  std::optional<std::uint32_t> NumberedIn(std::uint32_t table, std::uint32_t number) const;
  // What a name's entry leads to: of its languages the first, or the neutral one if `type` is that
  // of an icon or a group of them and there is one.
  std::optional<Extent> LanguageOf(std::optional<std::uint32_t> name, std::uint16_t type) const;

  ByteReader& file_;
  std::optional<std::uint64_t> root_;  // offset of the root table
  std::uint32_t resources_ = 0;        // its address
  std::uint32_t headers_size_ = 0;
  bool flat_ = false;  // the file is mapped as it is
  std::vector<Section> sections_;
};

}  // namespace trovex::records
