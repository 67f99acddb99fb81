#include "support/RawSectors.h"

namespace trovex::test {
namespace {

constexpr std::size_t kData = 2048;
constexpr std::size_t kRaw = 2352;
constexpr unsigned kSubchannel = 96;
constexpr std::int64_t kLeadIn = 150;

char TwoDigits(std::int64_t number) {
  return static_cast<char>(number / 10 << 4 | number % 10);
}

std::string Header(std::int64_t address, int mode) {
  const std::int64_t frame = address + kLeadIn;
  std::string header(1, '\0');
  header.append(10, '\xFF').append(1, '\0');
  header += TwoDigits(frame / 75 / 60);
  header += TwoDigits(frame / 75 % 60);
  header += TwoDigits(frame % 75);
  header += static_cast<char>(mode);
  return header;
}

// The subheader of a form 1 sector of data stands twice.
const std::string kSubheader("\0\0\10\0\0\0\10\0", 8);

std::string Sector(std::string_view data, std::int64_t address, const RawLayout& layout) {
  if (layout.stride == kData) return std::string(data);
  std::string sector;
  if (layout.stride != 2336) sector = Header(address, layout.mode);
  if (layout.stride == 2336 || layout.mode == 2) sector += kSubheader;
  sector += data;
  const std::size_t size = layout.stride == 2336 ? 2336 : kRaw;
  // Checks and corrections are not looked at; subchannels are full of bytes.
  sector.resize(size, '\x5A');
  if (layout.stride == kRaw + kSubchannel) sector.append(kSubchannel, '\xC3');
  return sector;
}

}  // namespace

std::string RawImage(std::string_view sectors, const RawLayout& layout) {
  std::string image;
  const std::string empty(kData, '\0');
  for (unsigned i = 0; i < layout.gap; ++i) {
    image += Sector(empty, layout.address - layout.gap + i, layout);
  }
  for (std::size_t i = 0; i < sectors.size() / kData; ++i) {
    const auto address = layout.address + static_cast<std::int64_t>(i);
    image += Sector(sectors.substr(i * kData, kData), address, layout);
  }
  return image;
}

std::string AudioSectors(unsigned count) {
  std::string samples;
  for (std::size_t i = 0; i < count * kRaw; ++i) samples += static_cast<char>(i * 7 % 251);
  return samples;
}

}  // namespace trovex::test
