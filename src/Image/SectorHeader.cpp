#include "Image/SectorHeader.h"

#include <cstring>

namespace trovex::image {
namespace {

constexpr char kSynchronisation[12] = {0,      '\xFF', '\xFF', '\xFF', '\xFF', '\xFF',
                                       '\xFF', '\xFF', '\xFF', '\xFF', '\xFF', 0};
constexpr int kFramesASecond = 75;
constexpr int kFirstAddress = 150;  // frames before the sector of address 0
constexpr std::size_t kModeAt = 15;

// A number in two decimal digits of four bits.
std::optional<int> Decimal(char byte) {
  const int high = static_cast<unsigned char>(byte) >> 4, low = byte & 15;
  if (high > 9 || low > 9) return std::nullopt;
  return high * 10 + low;
}

}  // namespace

std::optional<std::int64_t> AddressIn(const char* header) {
  if (std::memcmp(header, kSynchronisation, sizeof kSynchronisation) != 0) return std::nullopt;
  const auto minute = Decimal(header[12]), second = Decimal(header[13]),
             frame = Decimal(header[14]);
  if (!minute || !second || !frame || *second > 59 || *frame >= kFramesASecond) return std::nullopt;
  return (*minute * 60 + *second) * kFramesASecond + *frame - kFirstAddress;
}

std::optional<std::uint32_t> DataIn(const char* header) {
  switch (header[kModeAt]) {
    case 1:
      return 16;
    case 2:
      return 24;  // behind the subheader
    default:
      return std::nullopt;
  }
}

}  // namespace trovex::image
