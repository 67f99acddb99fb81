// Bytes of a test as a source.
#pragma once

#include <algorithm>
#include <cstring>
#include <string>
#include <utility>

#include "Platform/Records/ByteSource.h"

namespace trovex::test {

class StoredSource : public records::ByteSource {
 public:
  explicit StoredSource(std::string bytes) : bytes_(std::move(bytes)) {}
  std::size_t ReadAt(std::uint64_t offset, char* buffer, std::size_t size) override {
    if (offset >= bytes_.size()) return 0;
    const std::size_t given = std::min<std::size_t>(size, bytes_.size() - offset);
    std::memcpy(buffer, bytes_.data() + offset, given);
    return given;
  }

 private:
  std::string bytes_;
};

}  // namespace trovex::test
