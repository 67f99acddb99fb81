// Bounded reading of little-endian structures from a file that may hold anything.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "Platform/Records/ByteSource.h"

namespace trovex::records {

// A run of bytes with its numbers.
class ByteView {
 public:
  explicit ByteView(std::string_view bytes) : bytes_(bytes) {}
  // The number at `at`; 0 where it does not lie wholly inside.
  std::uint8_t U8(std::size_t at) const { return static_cast<std::uint8_t>(Number(at, 1)); }
  std::uint16_t U16(std::size_t at) const { return static_cast<std::uint16_t>(Number(at, 2)); }
  std::uint32_t U32(std::size_t at) const { return Number(at, 4); }

 private:
  std::uint32_t Number(std::size_t at, std::size_t size) const;

  std::string_view bytes_;
};

// Reads through a window, so that structures that lie together cost one read.
class ByteReader {
 public:
  static constexpr std::size_t kWindow = 4096;

  explicit ByteReader(ByteSource& source) : source_(source) {}

  // `size` bytes, at most kWindow, from `offset` on; nothing unless all of them are there. The
  // view is good until the next call.
  std::optional<ByteView> At(std::uint64_t offset, std::size_t size);
  // Any number of bytes; the caller has limited `size`. False unless all of them are there.
  bool Copy(std::uint64_t offset, std::size_t size, std::string& bytes);

 private:
  std::size_t Read(std::uint64_t offset, std::size_t least, char* buffer, std::size_t size);
  bool InWindow(std::uint64_t offset, std::size_t size) const;

  ByteSource& source_;
  std::uint64_t start_ = 0;
  std::size_t length_ = 0;
  char window_[kWindow];
};

}  // namespace trovex::records
