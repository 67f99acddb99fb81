// The sectors of a disc by their addresses, whichever files and tracks hold them.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "Image/Track.h"

namespace trovex::image {

class Sectors {
 public:
  // Later tracks go before earlier ones where both hold an address.
  void Add(Track track) { tracks_.push_back(std::move(track)); }
  std::vector<Track>& Tracks() { return tracks_; }

  // User data from byte `place` on, counted from the sector of address 0: up to `size` bytes, fewer
  // only where the image ends or holds no data there.
  std::size_t ReadAt(std::uint64_t place, char* buffer, std::size_t size) const;

 private:
  std::vector<Track> tracks_;
};

}  // namespace trovex::image
