// The SHA-1 digest of a file, by which others find it again.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace trovex::cli {

// Takes bytes in pieces of any size; Digest ends it.
class Sha1 {
 public:
  void Add(std::string_view bytes);
  // 40 hexadecimal digits in lower case.
  std::string Digest();

 private:
  static constexpr std::size_t kBlock = 64;

  void Take(const unsigned char* block);

  std::array<std::uint32_t, 5> state_ = {0x67452301, 0xEFCDAB89, 0x98BADCFE, 0x10325476,
                                         0xC3D2E1F0};
  std::array<unsigned char, kBlock> rest_ = {};  // what does not fill a block yet
  std::size_t rest_size_ = 0;
  std::uint64_t length_ = 0;
};

}  // namespace trovex::cli
