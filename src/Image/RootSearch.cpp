#include "Image/RootSearch.h"

#include <algorithm>
#include <array>

#include "Image/Record.h"

namespace trovex::image {
namespace {

// What of a directory is read: its records of itself and of the one above, which are as long as
// what other systems add to them.
using Head = std::array<char, 512>;

// The record by which a directory lists itself; nothing where the bytes begin none.
std::optional<Record> SelfIn(const Head& head, std::size_t held, Format format) {
  const auto record = ReadRecord({head.data(), held}, format);
  const bool self = record && record->identifier == kSelf && (record->flags & kRecordDirectory);
  return self ? record : std::nullopt;
}

std::optional<Record> SelfAt(const Sectors& sectors, std::uint64_t place, Format format) {
  Head head;
  return SelfIn(head, sectors.ReadAt(place, head.data(), head.size()), format);
}

class RootFinder {
 public:
  RootFinder(Sectors& sectors, Track& track, std::uint32_t index, const Descriptor& descriptor,
             SearchBudget& budget)
      : sectors_(sectors),
        track_(track),
        index_(index),
        budget_(budget),
        format_(descriptor.GetFormat()),
        block_size_(descriptor.BlockSize()),
        record_(ReadRecordHead(descriptor.RootRecord(), format_)) {
    Add(record_.block);
    AddFromTable(descriptor.LittlePathTable(), U32);
    AddFromTable(descriptor.BigPathTable(), BigU32);
  }

  std::optional<Root> Find() {
    if (auto root = Verified(Trust::kAddress)) return root;
    if (FindShift()) {
      if (auto root = Verified(Trust::kAddress)) return root;
    }
    return Verified(Trust::kRecord);
  }

 private:
  // Whether the directory's record of itself must name the place where it was found.
  enum class Trust { kAddress, kRecord };

  void Add(std::uint32_t block) {
    if (block != 0) blocks_[count_++] = block;
  }

  // The first entry of a table of paths is the root.
  void AddFromTable(std::uint32_t table, std::uint32_t (*number)(const char*)) {
    char entry[8];
    const std::uint64_t place = std::uint64_t{table} * block_size_;
    if (table == 0 || sectors_.ReadAt(place, entry, sizeof entry) != sizeof entry) return;
    const bool old = format_ == Format::kHighSierra;  // there the block comes first
    Add(number(entry + (old ? 0 : 2)) + static_cast<std::uint8_t>(entry[old ? 4 : 1]));
  }

  std::optional<Root> Verified(Trust trust) const {
    for (std::size_t i = 0; i < count_; ++i) {
      const auto self = SelfAt(sectors_, std::uint64_t{blocks_[i]} * block_size_, format_);
      if (!self || (trust == Trust::kAddress && self->block != blocks_[i])) continue;
      const bool told = blocks_[i] == record_.block && record_.size > 0;
      return Root{blocks_[i], told ? record_.size : self->size};
    }
    return std::nullopt;
  }

  // The addresses of a session saved alone are those of the whole disc: where the root really lies
  // tells how far they are off.
  bool FindShift() {
    if (block_size_ != kSectorSize) return false;
    for (std::uint32_t index = index_ + 1; index < track_.Count(); ++index) {
      if (!budget_.Spend()) return false;
      Head head;
      const auto self = SelfIn(head, track_.Read(index, 0, head.data(), head.size()), format_);
      if (!self || self->block != record_.block) continue;
      // The session begins before its descriptors.
      const std::uint32_t first = index_ - std::min(index_, kFirstDescriptor);
      track_.Renumber(first, std::int64_t{record_.block} - index);
      return true;
    }
    return false;
  }

  Sectors& sectors_;
  Track& track_;
  const std::uint32_t index_;
  SearchBudget& budget_;
  const Format format_;
  const std::uint32_t block_size_;
  const Record record_;
  std::array<std::uint32_t, 3> blocks_ = {};
  std::size_t count_ = 0;
};

}  // namespace

std::optional<Root> FindRoot(Sectors& sectors, Track& track, std::uint32_t index,
                             const Descriptor& descriptor, SearchBudget& budget) {
  return RootFinder(sectors, track, index, descriptor, budget).Find();
}

std::optional<Root> FindRootAnywhere(const Track& track, std::uint32_t index,
                                     const Descriptor& descriptor, SearchBudget& budget) {
  if (descriptor.BlockSize() != kSectorSize) return std::nullopt;
  const Format format = descriptor.GetFormat();
  for (std::uint32_t i = index + 1; i < track.Count() && budget.Spend(); ++i) {
    Head head;
    const std::size_t held = track.Read(i, 0, head.data(), head.size());
    const auto self = SelfIn(head, held, format);
    if (!self || track.AddressOf(i) != self->block) continue;
    const std::size_t length = LengthOfRecord({head.data(), held});
    const auto above = ReadRecord({head.data() + length, held - length}, format);
    if (above && above->identifier == kParent && above->block == self->block) {
      return Root{self->block, self->size};
    }
  }
  return std::nullopt;
}

}  // namespace trovex::image
