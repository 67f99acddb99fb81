// Reads from a source that may give less than it is asked for.
#pragma once

#include "Platform/Records/ByteSource.h"

namespace trovex::image {

// Up to `size` bytes from `offset` on, fewer only where the source ends or cannot be read.
inline std::size_t ReadAll(records::ByteSource& source, std::uint64_t offset, char* buffer,
                           std::size_t size) {
  std::size_t read = 0;
  while (read < size) {
    const std::size_t got = source.ReadAt(offset + read, buffer + read, size - read);
    if (got == 0) break;
    read += got;
  }
  return read;
}

}  // namespace trovex::image
