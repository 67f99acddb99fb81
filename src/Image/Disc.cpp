#include "Image/Disc.h"

#include <algorithm>

namespace trovex::image {
namespace {

constexpr std::uint32_t kDeepest = 128;

// Directories that several others share are shown in each; but where every level shares the next
// one, the ways double with each level.
constexpr std::size_t kMostWays = 16;

// A number that tells a way of entries through the tree from others.
std::uint64_t PathBelow(std::uint64_t path, std::uint64_t number) {
  std::uint64_t mixed = (path ^ (number + 0x9E3779B97F4A7C15)) * 0xBF58476D1CE4E5B9;
  mixed = (mixed ^ mixed >> 29) * 0x94D049BB133111EB;
  return mixed ^ mixed >> 32;
}

bool LeadsBack(const Folder* folder, std::uint32_t block) {
  while (folder != nullptr && folder->block != block) folder = folder->above.get();
  return folder != nullptr;
}

}  // namespace

FileContents::FileContents(std::shared_ptr<const Sectors> sectors, std::uint32_t block_size,
                           std::vector<Extent> extents)
    : sectors_(std::move(sectors)), block_size_(block_size), extents_(std::move(extents)) {
  for (const Extent& extent : extents_) length_ += extent.size;
}

std::size_t FileContents::ReadAt(std::uint64_t offset, char* buffer, std::size_t size) {
  std::size_t read = 0;
  for (const Extent& extent : extents_) {
    if (offset >= extent.size) {
      offset -= extent.size;
      continue;
    }
    const std::size_t wanted = std::min<std::uint64_t>(size - read, extent.size - offset);
    const std::uint64_t place = std::uint64_t{extent.block} * block_size_ + offset;
    const std::size_t got = sectors_->ReadAt(place, buffer + read, wanted);
    read += got;
    failed_ = failed_ || got < wanted;
    if (got < wanted || read == size) break;
    offset = 0;
  }
  return read;
}

Disc::Disc(Sectors sectors, Volume volume)
    : sectors_(std::make_shared<const Sectors>(std::move(sectors))),
      volume_(std::move(volume)),
      root_(Read(volume_.root, volume_.root_size, nullptr, 0)) {}

std::shared_ptr<const Folder> Disc::Read(std::uint32_t block, std::uint32_t size,
                                         std::shared_ptr<const Folder> above,
                                         std::uint64_t path) const {
  auto folder = std::make_shared<Folder>();
  const std::uint64_t place = std::uint64_t{block} * volume_.block_size;
  folder->directory = Directory::Read(*sectors_, place, size, volume_.format);
  folder->depth = above ? above->depth + 1 : 0;
  folder->above = std::move(above);
  folder->block = block;
  folder->path = path;
  return folder;
}

bool Disc::MayEnter(std::uint32_t block, std::uint64_t path) {
  const auto [first, last] = ways_.equal_range(block);
  if (std::any_of(first, last, [&](const auto& way) { return way.second == path; })) return true;
  if (static_cast<std::size_t>(std::distance(first, last)) >= kMostWays) return false;
  ways_.emplace(block, path);
  return true;
}

std::shared_ptr<const Folder> Disc::Open(const std::shared_ptr<const Folder>& folder,
                                         std::size_t number) {
  const Directory::Entry& entry = folder->directory->At(number);
  const std::uint32_t block = entry.first.block;
  const std::uint64_t path = PathBelow(folder->path, number);
  if ((entry.flags & kRecordDirectory) == 0 || folder->depth >= kDeepest) return nullptr;
  if (LeadsBack(folder.get(), block) || !MayEnter(block, path)) return nullptr;
  auto opened = Read(block, entry.first.size, folder, path);
  return opened->directory->IsMissing() ? nullptr : opened;
}

std::unique_ptr<FileContents> Disc::OpenFile(const Folder& folder, std::size_t number) const {
  const Directory::Entry& entry = folder.directory->At(number);
  if ((entry.flags & kRecordDirectory) != 0 || entry.interleaved) return nullptr;
  return std::make_unique<FileContents>(sectors_, volume_.block_size,
                                        folder.directory->ExtentsOf(entry));
}

}  // namespace trovex::image
