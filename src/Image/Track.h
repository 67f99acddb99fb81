// Sectors of one layout, as they lie in an image file, and their addresses on the disc.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

#include "Platform/Records/ByteSource.h"

namespace trovex::image {

// User data of a sector, in bytes.
inline constexpr std::uint32_t kSectorSize = 2048;

// How sectors lie in a file.
struct Layout {
  std::uint64_t start = 0;   // of the first one, in bytes
  std::uint32_t stride = 0;  // from one to the next
  std::uint32_t data = 0;    // where the user data begins, unless the sector itself tells
  std::uint32_t gap = 0;     // sectors before the one of address 0
  bool addressed = false;    // each begins with its synchronisation, address and mode
};

class Track {
 public:
  // `size` is that of the whole file in bytes. Where sectors carry their address, it counts;
  // otherwise the one behind the gap has address 0.
  Track(std::shared_ptr<records::ByteSource> source, std::uint64_t size, const Layout& layout);

  // Sectors from here to the end of the file; the last may be cut short.
  std::uint32_t Count() const { return count_; }
  // User data of sector `index` from `offset` on, and of those that follow in the file: up to
  // `size` bytes, fewer where the file ends or a sector holds no data.
  std::size_t Read(std::uint32_t index, std::uint32_t offset, char* buffer, std::size_t size) const;

  // A run of sectors whose addresses follow each other, from `first` up to, not including, `end`.
  struct Run {
    std::uint32_t first = 0, end = 0;
    std::int64_t shift = 0;  // address less index
  };
  // The run that holds an address, the latest in the file if there are several; null if none does.
  const Run* FindRun(std::int64_t address) const;
  // The address of a sector; nothing where it is not known.
  std::optional<std::int64_t> AddressOf(std::uint32_t index) const;
  // From `first` to the end of its run, sectors have the address index + `shift`.
  void Renumber(std::uint32_t first, std::int64_t shift);

 private:
  std::uint64_t PlaceOf(std::uint32_t index) const;
  std::optional<std::int64_t> ReadAddress(std::uint32_t index) const;
  void FindRuns();
  std::uint32_t EndOfRun(std::uint32_t first, std::int64_t shift) const;
  std::size_t ReadSpaced(std::uint32_t index, std::uint32_t offset, char* buffer,
                         std::size_t size) const;

  std::shared_ptr<records::ByteSource> source_;
  Layout layout_;
  std::uint32_t count_ = 0;
  std::vector<Run> runs_;  // ascending, apart
};

}  // namespace trovex::image
