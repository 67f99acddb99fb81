// Wraps the user data of a disc into the sectors of raw images.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace trovex::test {

struct RawLayout {
  unsigned stride = 2352;    // 2048, 2336, 2352 or 2448
  int mode = 1;              // of sectors with a header; 2336 bytes are always of mode 2
  unsigned gap = 0;          // empty sectors before the first
  std::int64_t address = 0;  // of the first sector behind the gap
};

// `sectors` is a whole number of pieces of 2048 bytes.
std::string RawImage(std::string_view sectors, const RawLayout& layout);

// `count` sectors of music.
std::string AudioSectors(unsigned count);

}  // namespace trovex::test
