// The volume that a disc shows: of its sessions the last, of its directories those with long names.
#pragma once

#include <cstdint>
#include <optional>

#include "Image/Record.h"
#include "Image/Sectors.h"
#include "Platform/Text.h"

namespace trovex::image {

struct Volume {
  Format format = Format::kIso;
  std::uint32_t block_size = kSectorSize;
  std::uint32_t root = 0;       // block of the root directory
  std::uint32_t root_size = 0;  // in bytes
  RecordDate root_date = {};
  Text label;
  // True where the image ends before the volume does, by what the volume says of its size.
  bool cut_short = false;
};

// Nothing where no track has descriptors that lead to a root directory. A session that was saved
// alone is renumbered on the way. `primaries` are the indices of the tracks' first descriptors.
std::optional<Volume> FindVolume(Sectors& sectors, const std::vector<std::uint32_t>& primaries);

}  // namespace trovex::image
