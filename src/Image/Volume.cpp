#include "Image/Volume.h"

#include <algorithm>
#include <array>

#include "Image/Names.h"
#include "Image/RootSearch.h"

namespace trovex::image {
namespace {

constexpr std::size_t kMostSessions = 99;

// The primary descriptors of a track, the first one at `first`. Later sessions have theirs behind
// the end of the first volume.
std::vector<std::uint32_t> PrimariesOf(const Track& track, std::uint32_t first,
                                       SearchBudget& budget) {
  std::vector<std::uint32_t> primaries{first};
  Descriptor descriptor;
  if (!descriptor.Read(track, first)) return primaries;
  const std::uint64_t sectors =
      std::uint64_t{descriptor.SpaceSize()} * descriptor.BlockSize() / kSectorSize;
  const std::uint64_t session = first - std::min(first, kFirstDescriptor);
  std::uint64_t index = std::max<std::uint64_t>(session + sectors, first + 1);
  for (; index < track.Count() && primaries.size() < kMostSessions; ++index) {
    if (!budget.Spend()) break;
    std::array<char, kDescriptorHead> head;
    const auto at = static_cast<std::uint32_t>(index);
    if (track.Read(at, 0, head.data(), head.size()) != head.size()) continue;
    if (TypeOfDescriptor(head.data()) == kPrimaryDescriptor) primaries.push_back(at);
  }
  return primaries;
}

// A supplementary descriptor with long names among those of the session.
std::optional<Descriptor> FindJoliet(const Track& track, std::uint32_t primary) {
  Descriptor descriptor;
  for (std::uint32_t i = 1; i < kMostDescriptors; ++i) {
    if (!descriptor.Read(track, primary + i) || descriptor.Type() == kLastDescriptor) break;
    if (descriptor.GetFormat() == Format::kJoliet) return descriptor;
  }
  return std::nullopt;
}

// A later session may count its size from its own beginning or from that of the disc.
bool IsCutShort(const Sectors& sectors, const Track& track, std::uint32_t index,
                const Descriptor& primary) {
  const std::uint64_t size = std::uint64_t{primary.SpaceSize()} * primary.BlockSize();
  const std::int64_t session = track.AddressOf(index).value_or(0) - kFirstDescriptor;
  const std::uint64_t start = session > 0 ? static_cast<std::uint64_t>(session) * kSectorSize : 0;
  char last;
  const auto holds = [&](std::uint64_t end) { return sectors.ReadAt(end - 1, &last, 1) == 1; };
  return size > 0 && !holds(size) && !holds(start + size);
}

Volume VolumeOf(const Descriptor& descriptor, const Root& root) {
  Volume volume;
  volume.format = descriptor.GetFormat();
  volume.block_size = descriptor.BlockSize();
  volume.root = root.block;
  volume.root_size = root.size;
  volume.root_date = ReadRecordHead(descriptor.RootRecord(), volume.format).date;
  volume.label = LabelText(descriptor.Label(), descriptor.GetFormat());
  return volume;
}

// Whether a descriptor found behind another may begin a session: its root lies behind it. What
// stands in an image that is itself a file of the disc leads elsewhere.
bool BeginsSession(const Track& track, std::uint32_t index, const Descriptor& primary,
                   const Root& root) {
  const std::uint64_t sector = std::uint64_t{root.block} * primary.BlockSize() / kSectorSize;
  const auto address = track.AddressOf(index);
  return address && static_cast<std::int64_t>(sector) >= *address;
}

enum class Place { kFirst, kLater };

std::optional<Volume> VolumeAt(Sectors& sectors, Track& track, std::uint32_t index, Place place,
                               SearchBudget& budget) {
  Descriptor primary;
  if (!primary.Read(track, index)) return std::nullopt;
  auto root = FindRoot(sectors, track, index, primary, budget);
  const bool later = place == Place::kLater;
  if (later && (!root || !BeginsSession(track, index, primary, *root))) return std::nullopt;
  const auto joliet = FindJoliet(track, index);
  const auto long_root = joliet ? FindRoot(sectors, track, index, *joliet, budget) : std::nullopt;
  if (!root && !long_root) root = FindRootAnywhere(track, index, primary, budget);
  if (!root && !long_root) return std::nullopt;
  Volume volume = long_root ? VolumeOf(*joliet, *long_root) : VolumeOf(primary, *root);
  if (volume.label.empty()) volume.label = LabelText(primary.Label(), primary.GetFormat());
  volume.cut_short = IsCutShort(sectors, track, index, primary);
  return volume;
}

}  // namespace

std::optional<Volume> FindVolume(Sectors& sectors, const std::vector<std::uint32_t>& primaries) {
  SearchBudget budget;
  std::vector<Track>& tracks = sectors.Tracks();
  for (std::size_t i = tracks.size(); i-- > 0;) {
    const std::vector<std::uint32_t> found = PrimariesOf(tracks[i], primaries[i], budget);
    for (std::size_t j = found.size(); j-- > 0;) {
      const Place place = j == 0 ? Place::kFirst : Place::kLater;
      if (auto volume = VolumeAt(sectors, tracks[i], found[j], place, budget)) return volume;
    }
  }
  return std::nullopt;
}

}  // namespace trovex::image
