#include "Apps/trovex-cli/Sha1.h"

#include <algorithm>
#include <bit>

namespace trovex::cli {
namespace {

constexpr std::size_t kLengthSize = 8;
constexpr unsigned char kEndMark = 0x80;
constexpr int kRounds = 80;

using State = std::array<std::uint32_t, 5>;

// The 16 words of a block, lengthened to one a round.
std::array<std::uint32_t, kRounds> Schedule(const unsigned char* block) {
  std::array<std::uint32_t, kRounds> words;
  for (std::size_t i = 0; i < 16; ++i) {
    const unsigned char* at = block + 4 * i;
    words[i] =
        std::uint32_t{at[0]} << 24 | std::uint32_t{at[1]} << 16 | std::uint32_t{at[2]} << 8 | at[3];
  }
  for (std::size_t i = 16; i < kRounds; ++i) {
    words[i] = std::rotl(words[i - 3] ^ words[i - 8] ^ words[i - 14] ^ words[i - 16], 1);
  }
  return words;
}

// The mixing of round `i`, its constant included.
std::uint32_t Mixed(std::size_t i, std::uint32_t b, std::uint32_t c, std::uint32_t d) {
  if (i < 20) return ((b & c) | (~b & d)) + 0x5A827999;
  if (i < 40) return (b ^ c ^ d) + 0x6ED9EBA1;
  if (i < 60) return ((b & c) | (b & d) | (c & d)) + 0x8F1BBCDC;
  return (b ^ c ^ d) + 0xCA62C1D6;
}

}  // namespace

void Sha1::Take(const unsigned char* block) {
  const auto words = Schedule(block);
  State s = state_;
  for (std::size_t i = 0; i < kRounds; ++i) {
    const std::uint32_t first = std::rotl(s[0], 5) + Mixed(i, s[1], s[2], s[3]) + s[4] + words[i];
    s = {first, s[0], std::rotl(s[1], 30), s[2], s[3]};
  }
  for (std::size_t i = 0; i < s.size(); ++i) state_[i] += s[i];
}

void Sha1::Add(std::string_view bytes) {
  length_ += bytes.size();
  while (!bytes.empty()) {
    const std::size_t size = std::min(bytes.size(), kBlock - rest_size_);
    std::copy_n(bytes.begin(), size, rest_.begin() + static_cast<std::ptrdiff_t>(rest_size_));
    bytes.remove_prefix(size);
    rest_size_ += size;
    if (rest_size_ < kBlock) return;
    Take(rest_.data());
    rest_size_ = 0;
  }
}

std::string Sha1::Digest() {
  const std::uint64_t bits = length_ * 8;
  Add(std::string(1, static_cast<char>(kEndMark)));
  while (rest_size_ != kBlock - kLengthSize) Add(std::string(1, '\0'));
  std::string length;
  for (int shift = 56; shift >= 0; shift -= 8) length += static_cast<char>(bits >> shift & 0xFF);
  Add(length);
  constexpr std::string_view kDigits = "0123456789abcdef";
  std::string digest;
  for (const std::uint32_t word : state_) {
    for (int shift = 28; shift >= 0; shift -= 4) digest += kDigits[word >> shift & 0xF];
  }
  return digest;
}

}  // namespace trovex::cli
