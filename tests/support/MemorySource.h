// A file in memory for the readers of records.
#pragma once

#include <algorithm>
#include <cstring>
#include <limits>
#include <string_view>

#include "Platform/Records/ByteSource.h"

namespace trovex::test {

// Counts how often and how much it is read. The bytes must outlive it.
class MemorySource : public records::ByteSource {
 public:
  // Gives at most `piece` bytes at a time.
  explicit MemorySource(std::string_view bytes,
                        std::size_t piece = std::numeric_limits<std::size_t>::max())
      : bytes_(bytes), piece_(piece) {}

  std::size_t ReadAt(std::uint64_t offset, char* buffer, std::size_t size) override {
    ++reads;
    if (offset >= bytes_.size()) return 0;
    size = std::min({size, piece_, bytes_.size() - static_cast<std::size_t>(offset)});
    std::memcpy(buffer, bytes_.data() + offset, size);
    total += size;
    return size;
  }

  int reads = 0;
  std::size_t total = 0;

 private:
  std::string_view bytes_;
  std::size_t piece_;
};

}  // namespace trovex::test
