#include "Image/Probe.h"

#include <array>
#include <cstring>
#include <string_view>

#include "Image/Descriptor.h"
#include "Image/ReadAll.h"
#include "Image/SectorHeader.h"

namespace trovex::image {
namespace {

struct Row {
  std::uint32_t stride, data;
};
constexpr Row kRows[] = {{2048, 0}, {2352, 16}, {2352, 24}, {2336, 8}, {2448, 16}, {2448, 24}};

// Two seconds lead in to a track. Others are met, too, but rarely: they are tried last.
constexpr std::uint32_t kUsualGaps[] = {0, 150};
constexpr std::uint32_t kLongestGap = 512;

constexpr std::size_t kRawHeader = 12;  // of a row's stride: sectors with all that is on the disc

template <std::size_t N>
bool StandsAt(records::ByteSource& source, std::uint64_t place, const char (&text)[N]) {
  char bytes[N - 1];
  return ReadAll(source, place, bytes, sizeof bytes) == sizeof bytes &&
         std::memcmp(bytes, text, sizeof bytes) == 0;
}

std::uint64_t PlaceOf(std::uint64_t start, const Row& row, std::uint32_t index) {
  return start + std::uint64_t{index} * row.stride + row.data;
}

std::optional<int> TypeAt(records::ByteSource& source, std::uint64_t place) {
  std::array<char, kDescriptorHead> head;
  if (ReadAll(source, place, head.data(), head.size()) != head.size()) return std::nullopt;
  return TypeOfDescriptor(head.data());
}

// How many descriptors stand before the primary one; nothing where there are none, or none such.
std::optional<std::uint32_t> BeforePrimary(records::ByteSource& source, std::uint64_t place,
                                           std::uint32_t stride) {
  for (std::uint32_t i = 0; i < kMostDescriptors; ++i) {
    const auto type = TypeAt(source, place + std::uint64_t{i} * stride);
    if (type == kPrimaryDescriptor) return i;
    if (!type || type == kLastDescriptor) break;
  }
  return std::nullopt;
}

bool IsUdf(records::ByteSource& source, std::uint64_t place) {
  return StandsAt(source, place + 1, "BEA01") || StandsAt(source, place + 1, "NSR02") ||
         StandsAt(source, place + 1, "NSR03");
}

// A Macintosh volume bears its signature in its third block, a map of partitions in its second:
// both lie in the first sector.
bool IsHfs(records::ByteSource& source, std::uint64_t first) {
  return StandsAt(source, first + 1024, "BD") || StandsAt(source, first + 1024, "H+") ||
         StandsAt(source, first + 512, "PM");
}

bool IsAddressed(records::ByteSource& source, std::uint64_t place) {
  char header[kHeaderSize];
  return ReadAll(source, place, header, sizeof header) == sizeof header && AddressIn(header);
}

std::optional<Probed> ProbeGap(records::ByteSource& source, std::uint64_t start,
                               std::uint32_t gap) {
  const std::uint32_t index = gap + kFirstDescriptor;
  for (const Row& row : kRows) {
    const std::uint64_t place = PlaceOf(start, row, index);
    const auto before = BeforePrimary(source, place, row.stride);
    if (!before) continue;
    const bool raw = row.data > kRawHeader;
    const bool addressed = raw && IsAddressed(source, place - row.data);
    return Probed{Mark::kVolume, {start, row.stride, row.data, gap, addressed}, index + *before};
  }
  return std::nullopt;
}

}  // namespace

Probed Probe(records::ByteSource& source, std::uint64_t start) {
  for (const std::uint32_t gap : kUsualGaps) {
    if (const auto probed = ProbeGap(source, start, gap)) return *probed;
  }
  if (StandsAt(source, start, "MComprHD")) return {Mark::kCompressed, {}, 0};
  for (const Row& row : kRows) {
    if (IsUdf(source, PlaceOf(start, row, kFirstDescriptor))) return {Mark::kUdf, {}, 0};
  }
  for (std::uint32_t gap = 1; gap <= kLongestGap; ++gap) {
    if (const auto probed = ProbeGap(source, start, gap)) return *probed;
  }
  for (const Row& row : kRows) {
    if (IsHfs(source, PlaceOf(start, row, 0))) return {Mark::kHfs, {}, 0};
  }
  return {};
}

}  // namespace trovex::image
