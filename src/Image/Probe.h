// Finds out how sectors lie in a file, from its bytes alone.
#pragma once

#include <cstdint>
#include <optional>

#include "Image/Track.h"

namespace trovex::image {

// What a file is known by.
enum class Mark {
  kNone,
  kVolume,      // ISO 9660 or High Sierra descriptors
  kUdf,         // a UDF volume alone
  kHfs,         // a Macintosh volume alone
  kCompressed,  // a CHD file
};

struct Probed {
  Mark mark = Mark::kNone;
  Layout layout;              // of a kVolume
  std::uint32_t primary = 0;  // of a kVolume: index of the primary descriptor's sector
};

// Looks at the file from byte `start` on, where a track begins.
Probed Probe(records::ByteSource& source, std::uint64_t start);

}  // namespace trovex::image
