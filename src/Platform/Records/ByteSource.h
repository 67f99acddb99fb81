// Where the readers of records take their bytes: a file of the system, one inside another, memory.
#pragma once

#include <cstddef>
#include <cstdint>

namespace trovex::records {

class ByteSource {
 public:
  virtual ~ByteSource() = default;
  // Up to `size` bytes from `offset` on, none only where the source ends or cannot be read.
  virtual std::size_t ReadAt(std::uint64_t offset, char* buffer, std::size_t size) = 0;
};

}  // namespace trovex::records
