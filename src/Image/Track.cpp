#include "Image/Track.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <limits>

#include "Image/ReadAll.h"
#include "Image/SectorHeader.h"

namespace trovex::image {
namespace {

constexpr std::uint32_t kAtOnce = 16;  // spaced sectors read together
constexpr std::uint32_t kLongestStride = 2448;

// A disc has at most 99 tracks; damaged sectors may part a few more runs.
constexpr std::size_t kMaxRuns = 256;

// Sectors without an address that are looked at; a whole disc has fewer.
constexpr std::uint32_t kMostWithout = 1 << 20;

}  // namespace

Track::Track(std::shared_ptr<records::ByteSource> source, std::uint64_t size, const Layout& layout)
    : source_(std::move(source)), layout_(layout) {
  const std::uint64_t bytes = size > layout.start ? size - layout.start : 0;
  const std::uint64_t count = (bytes + layout.stride - 1) / layout.stride;
  count_ = static_cast<std::uint32_t>(
      std::min<std::uint64_t>(count, std::numeric_limits<std::uint32_t>::max()));
  if (layout.addressed) {
    FindRuns();
  } else {
    runs_.push_back({0, count_, -static_cast<std::int64_t>(layout.gap)});
  }
}

std::uint64_t Track::PlaceOf(std::uint32_t index) const {
  return layout_.start + std::uint64_t{index} * layout_.stride;
}

std::optional<std::int64_t> Track::ReadAddress(std::uint32_t index) const {
  char header[kHeaderSize];
  const std::size_t got = ReadAll(*source_, PlaceOf(index), header, sizeof header);
  return got == sizeof header ? AddressIn(header) : std::nullopt;
}

// Sectors without an address, as those of music, lie between the runs. A run is gone through in
// growing steps, so a disc of one track costs a handful of reads.
void Track::FindRuns() {
  std::uint32_t without = 0;
  for (std::uint32_t index = 0; index < count_ && runs_.size() < kMaxRuns;) {
    const auto address = ReadAddress(index);
    if (!address) {
      if (++without == kMostWithout) break;
      ++index;
      continue;
    }
    const std::int64_t shift = *address - index;
    const std::uint32_t end = EndOfRun(index, shift);
    if (!runs_.empty() && runs_.back().shift == shift) {
      runs_.back().end = end;
    } else {
      runs_.push_back({index, end, shift});
    }
    index = end;
  }
}

std::uint32_t Track::EndOfRun(std::uint32_t first, std::int64_t shift) const {
  const auto belongs = [&](std::uint32_t index) { return ReadAddress(index) == index + shift; };
  std::uint32_t last = first, step = 1;  // `last` belongs
  while (step < count_ - last && belongs(last + step)) {
    last += step;
    step = std::min(step * 2, std::uint32_t{1} << 30);
  }
  std::uint32_t end = std::min<std::uint64_t>(std::uint64_t{last} + step, count_);
  if (end == count_ && last + 1 < end && belongs(end - 1)) return end;
  while (end - last > 1) {
    const std::uint32_t middle = last + (end - last) / 2;
    (belongs(middle) ? last : end) = middle;
  }
  return end;
}

const Track::Run* Track::FindRun(std::int64_t address) const {
  const auto found = std::find_if(runs_.rbegin(), runs_.rend(), [&](const Run& run) {
    return address >= run.first + run.shift && address < run.end + run.shift;
  });
  return found == runs_.rend() ? nullptr : &*found;
}

std::optional<std::int64_t> Track::AddressOf(std::uint32_t index) const {
  for (const Run& run : runs_) {
    if (index >= run.first && index < run.end) return index + run.shift;
  }
  return std::nullopt;
}

void Track::Renumber(std::uint32_t first, std::int64_t shift) {
  const auto run = std::find_if(runs_.begin(), runs_.end(),
                                [&](const Run& r) { return first >= r.first && first < r.end; });
  if (run == runs_.end()) return;
  const Run renumbered{first, run->end, shift};
  run->end = first;
  runs_.insert(run + 1, renumbered);
}

std::size_t Track::Read(std::uint32_t index, std::uint32_t offset, char* buffer,
                        std::size_t size) const {
  if (index >= count_) return 0;
  if (layout_.stride == kSectorSize) {
    return ReadAll(*source_, PlaceOf(index) + offset, buffer, size);
  }
  std::size_t read = 0;
  while (read < size && index < count_) {
    const std::size_t got = ReadSpaced(index, offset, buffer + read, size - read);
    read += got;
    const std::uint64_t reached = offset + got;
    if (got == 0 || (read < size && reached % kSectorSize != 0)) break;
    index += static_cast<std::uint32_t>(reached / kSectorSize);
    offset = static_cast<std::uint32_t>(reached % kSectorSize);
  }
  return read;
}

std::size_t Track::ReadSpaced(std::uint32_t index, std::uint32_t offset, char* buffer,
                              std::size_t size) const {
  std::array<char, std::size_t{kAtOnce} * kLongestStride> raw;
  const std::uint64_t wanted = (offset + std::uint64_t{size} + kSectorSize - 1) / kSectorSize;
  const std::size_t sectors = std::min<std::uint64_t>(wanted, kAtOnce);
  const std::size_t got = ReadAll(*source_, PlaceOf(index), raw.data(), sectors * layout_.stride);
  std::size_t read = 0;
  for (std::size_t at = 0; at < got && read < size; at += layout_.stride, offset = 0) {
    const std::size_t held = std::min<std::size_t>(got - at, layout_.stride);
    std::size_t begin = layout_.addressed ? kLongestStride : std::size_t{layout_.data};
    if (layout_.addressed && held >= kHeaderSize) {
      if (const auto data = DataIn(&raw[at])) begin = *data;
    }
    if (held <= begin + offset) break;
    const std::size_t there = std::min<std::size_t>(held - begin, kSectorSize) - offset;
    const std::size_t given = std::min(there, size - read);
    std::memcpy(buffer + read, &raw[at + begin + offset], given);
    read += given;
    if (there < kSectorSize - offset) break;
  }
  return read;
}

}  // namespace trovex::image
