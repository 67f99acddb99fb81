// Whether a picture of an icon in the PNG format is what it says.
#pragma once

#include "Platform/Records/Resources.h"

namespace trovex::records {

// True if a PNG image stands at that place, its chunks whole and unchanged by their sums, to the
// last one, and neither side longer than `most` pixels. What its colours decompress to is not
// looked at.
bool IsSoundPng(ByteReader& file, const Extent& place, std::uint32_t most);

}  // namespace trovex::records
