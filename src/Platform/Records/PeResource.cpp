#include <algorithm>

#include "Platform/Records/Resources.h"

namespace trovex::records {
namespace {

constexpr std::size_t kFileHeaderSize = 24;  // signature and file header
constexpr std::size_t kSectionCountAt = 6;
constexpr std::size_t kOptionalSizeAt = 20;

constexpr std::uint16_t kMagic32 = 0x10B;
constexpr std::uint16_t kMagic64 = 0x20B;
constexpr std::size_t kSectionAlignmentAt = 32;
constexpr std::size_t kHeadersSizeAt = 60;
constexpr std::size_t kDirectoryCountAt32 = 92;
constexpr std::size_t kDirectoryCountAt64 = 108;
constexpr std::uint32_t kResourceDirectory = 2;
constexpr std::size_t kOptionalPrefix32 = kDirectoryCountAt32 + 4 + (kResourceDirectory + 1) * 8;
constexpr std::size_t kOptionalPrefix64 = kDirectoryCountAt64 + 4 + (kResourceDirectory + 1) * 8;

constexpr std::size_t kSectionSize = 40;
constexpr std::uint32_t kNotInFile = 0x80;   // the section's contents are zeros of the loader
constexpr std::uint32_t kSectorMask = 511;   // raw data begins at a sector, whatever is written
constexpr std::uint32_t kPageSize = 0x1000;  // below this alignment the file is mapped flat
constexpr std::size_t kMaxSections = 96;

constexpr std::size_t kTableSize = 16;  // header of a table of resources
constexpr std::size_t kEntrySize = 8;
constexpr std::size_t kLeafSize = 8;  // address and size
constexpr std::uint32_t kSubtable = 0x80000000;
constexpr std::uint32_t kNamed = 0x80000000;
constexpr std::uint32_t kMaxNumber = 0xFFFF;
constexpr std::uint32_t kMaxEntries = 4096;

std::optional<std::uint32_t> Subtable(std::optional<std::uint32_t> target) {
  if (!target || (*target & kSubtable) == 0) return std::nullopt;
  return *target & ~kSubtable;
}

}  // namespace

PeResources::PeResources(ByteReader& file, std::uint64_t header) : file_(file) {
  const auto file_header = file.At(header, kFileHeaderSize);
  if (!file_header) return;
  const std::size_t sections = file_header->U16(kSectionCountAt);
  const std::size_t optional_size = file_header->U16(kOptionalSizeAt);
  const std::uint64_t optional = header + kFileHeaderSize;
  if (ReadOptionalHeader(optional, optional_size) &&
      ReadSections(optional + optional_size, sections)) {
    root_ = OffsetOf(resources_);
  }
}

bool PeResources::ReadOptionalHeader(std::uint64_t at, std::size_t size) {
  const auto magic = file_.At(at, 2);
  if (!magic) return false;
  const bool wide = magic->U16(0) == kMagic64;
  if (!wide && magic->U16(0) != kMagic32) return false;
  const std::size_t prefix = wide ? kOptionalPrefix64 : kOptionalPrefix32;
  const std::size_t count_at = wide ? kDirectoryCountAt64 : kDirectoryCountAt32;
  const auto header = file_.At(at, prefix);
  if (!header || size < prefix || header->U32(count_at) <= kResourceDirectory) return false;
  resources_ = header->U32(count_at + 4 + kResourceDirectory * 8);
  headers_size_ = header->U32(kHeadersSizeAt);
  flat_ = header->U32(kSectionAlignmentAt) < kPageSize;
  return resources_ != 0;
}

bool PeResources::ReadSections(std::uint64_t at, std::size_t count) {
  if (count > kMaxSections) return false;
  for (std::size_t i = 0; i < count; ++i, at += kSectionSize) {
    const auto header = file_.At(at, kSectionSize);
    if (!header) return false;
    sections_.push_back({header->U32(12), header->U32(16), header->U32(20), header->U32(36)});
  }
  return true;
}

std::optional<std::uint64_t> PeResources::OffsetOf(std::uint32_t address) const {
  if (flat_ || address < headers_size_) return address;
  const auto holds = [address](const Section& section) {
    return address >= section.address && address - section.address < section.size;
  };
  const auto section = std::find_if(sections_.begin(), sections_.end(), holds);
  if (section == sections_.end()) return std::nullopt;
  return std::uint64_t{section->raw & ~kSectorMask} + (address - section->address);
}

bool PeResources::IsWhole() const {
  const auto ordered = [this](std::uint16_t type) {
    return IsOrdered(Subtable(NumberedIn(0, type)));
  };
  return SectionsAreWhole() && IsOrdered(0) && ordered(kIconType) && ordered(kIconGroupType);
}

bool PeResources::SectionsAreWhole() const {
  if (!root_ || flat_ || resources_ < headers_size_) return false;
  std::uint64_t end = 0;
  bool own_section = false;
  for (const Section& section : sections_) {
    if (section.size == 0 || (section.flags & kNotInFile) != 0) continue;
    if ((section.raw & kSectorMask) != 0) return false;
    end = std::max(end, std::uint64_t{section.raw} + section.size);
    own_section = own_section || section.address == resources_;
  }
  return own_section && file_.At(end - 1, 1).has_value();
}

// The tables of resources (type, name, language) lead from one to the next by offsets that count
// from the first one. A table's entries are its named ones, then its numbered ones; all must be
// there, since readers go through them in their own ways.
std::optional<std::uint32_t> PeResources::FirstIn(std::uint32_t at) const {
  const auto table = file_.At(*root_ + at, kTableSize);
  if (!table) return std::nullopt;
  const std::uint32_t count = std::uint32_t{table->U16(12)} + table->U16(14);
  if (count == 0 || count > kMaxEntries) return std::nullopt;
  const std::uint64_t entries = *root_ + at + kTableSize;
  if (!file_.At(entries + (count - 1) * kEntrySize, kEntrySize)) return std::nullopt;
  const auto first = file_.At(entries, kEntrySize);
  return first ? std::optional(first->U32(4)) : std::nullopt;
}

// Some readers halve their way to a number.
bool PeResources::IsOrdered(std::optional<std::uint32_t> at) const {
  const auto table = at ? file_.At(*root_ + *at, kTableSize) : std::nullopt;
  if (!table) return false;
  const std::uint32_t named = table->U16(12), count = named + table->U16(14);
  if (count > kMaxEntries) return false;
  std::uint32_t least = 0;
  for (std::uint32_t i = 0; i < count; ++i) {
    const auto entry = file_.At(*root_ + *at + kTableSize + i * kEntrySize, kEntrySize);
    if (!entry) return false;
    const std::uint32_t id = entry->U32(0);
    const bool in_order = i < named ? (id & kNamed) != 0 : id >= least && id <= kMaxNumber;
    if (!in_order) return false;
    if (i >= named) least = id + 1;
  }
  return true;
}

std::optional<std::uint32_t> PeResources::NumberedIn(std::uint32_t at, std::uint32_t number) const {
  const auto table = file_.At(*root_ + at, kTableSize);
  if (!table) return std::nullopt;
  const std::uint32_t named = table->U16(12), numbered = table->U16(14);
  if (named + numbered > kMaxEntries) return std::nullopt;
  for (std::uint32_t i = named; i < named + numbered; ++i) {
    const auto entry = file_.At(*root_ + at + kTableSize + i * kEntrySize, kEntrySize);
    if (!entry) return std::nullopt;
    if (entry->U32(0) == number) return entry->U32(4);
  }
  return std::nullopt;
}

std::optional<Extent> PeResources::LanguageOf(std::optional<std::uint32_t> name,
                                              std::uint16_t type) const {
  const auto languages = Subtable(name);
  const auto table = languages ? file_.At(*root_ + *languages, kTableSize) : std::nullopt;
  if (!table || table->U16(12) != 0) return std::nullopt;  // no language has a name
  auto target = FirstIn(*languages);
  if (target && type != kVersionType) {
    if (!IsOrdered(languages)) return std::nullopt;
    const auto neutral = NumberedIn(*languages, 0);
    if (neutral) target = neutral;
  }
  if (!target || (*target & kSubtable) != 0) return std::nullopt;
  const auto leaf = file_.At(*root_ + *target, kLeafSize);
  if (!leaf) return std::nullopt;
  const std::uint32_t size = leaf->U32(4);
  const auto offset = OffsetOf(leaf->U32(0));
  return offset ? std::optional<Extent>({*offset, size}) : std::nullopt;
}

std::optional<Extent> PeResources::First(std::uint16_t type) const {
  const auto names = root_ ? Subtable(NumberedIn(0, type)) : std::nullopt;
  return names ? LanguageOf(FirstIn(*names), type) : std::nullopt;
}

std::optional<Extent> PeResources::Numbered(std::uint16_t type, std::uint16_t number) const {
  const auto names = root_ ? Subtable(NumberedIn(0, type)) : std::nullopt;
  return names ? LanguageOf(NumberedIn(*names, number), type) : std::nullopt;
}

}  // namespace trovex::records
