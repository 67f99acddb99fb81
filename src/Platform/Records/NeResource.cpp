#include "Platform/Records/Resources.h"

namespace trovex::records {
namespace {

constexpr std::size_t kNeHeaderSize = 0x40;
constexpr std::size_t kResourceTableAt = 0x24;  // relative to the header, as are all tables
constexpr std::size_t kResidentNamesAt = 0x26;
constexpr std::size_t kTargetSystemAt = 0x36;
constexpr std::uint16_t kTargetOs2 = 1;  // whose resource table looks otherwise

constexpr std::size_t kShiftSize = 2;
constexpr std::size_t kTypeEndSize = 2;      // a type of zero, where no more come
constexpr std::uint16_t kNumbered = 0x8000;  // marks a number in the place of a name
constexpr std::size_t kTypeSize = 8;         // type, count, reserved
constexpr std::size_t kResourceSize = 12;    // offset, length, flags, name, reserved

constexpr unsigned kMaxShift = 15;
constexpr int kMaxTypes = 1024;

}  // namespace

NeResources::NeResources(ByteReader& file, std::uint64_t header) : file_(file) {
  const auto ne = file.At(header, kNeHeaderSize);
  if (!ne || (ne->U16(kTargetSystemAt) & 0xFF) == kTargetOs2) return;
  // A file without resources lets both tables begin at the same place.
  if (ne->U16(kResourceTableAt) == ne->U16(kResidentNamesAt)) return;
  const std::uint64_t at = header + ne->U16(kResourceTableAt);
  const auto table = file.At(at, kShiftSize);
  if (!table || table->U16(0) > kMaxShift) return;
  shift_ = table->U16(0);
  table_ = at;
  names_ = header + ne->U16(kResidentNamesAt);
}

// Readers go on to the next type even behind the one they wanted, and some take the last of
// several.
bool NeResources::IsWhole() const {
  std::uint64_t at = table_ + kShiftSize;
  int icons = 0, groups = 0;
  for (int types = 0; table_ != 0 && types < kMaxTypes; ++types) {
    const auto end = file_.At(at, kTypeEndSize);
    if (!end) return false;
    if (end->U16(0) == 0) return at + kTypeEndSize <= names_ && icons <= 1 && groups <= 1;
    const auto type = file_.At(at, kTypeSize);
    if (!type) return false;
    icons += type->U16(0) == (kNumbered | kIconType);
    groups += type->U16(0) == (kNumbered | kIconGroupType);
    at += kTypeSize + type->U16(2) * kResourceSize;
  }
  return false;
}

NeResources::Entries NeResources::EntriesOf(std::uint16_t wanted) const {
  std::uint64_t at = table_ + kShiftSize;
  for (int types = 0; table_ != 0 && types < kMaxTypes; ++types) {
    const auto type = file_.At(at, kTypeSize);
    if (!type || type->U16(0) == 0) break;
    const std::size_t count = type->U16(2);
    at += kTypeSize;
    if (type->U16(0) == (kNumbered | wanted) && count > 0) return {at, count};
    at += count * kResourceSize;
  }
  return {};
}

std::optional<Extent> NeResources::EntryAt(std::uint64_t at) const {
  const auto entry = file_.At(at, kResourceSize);
  if (!entry) return std::nullopt;
  return Extent{std::uint64_t{entry->U16(0)} << shift_, std::uint64_t{entry->U16(2)} << shift_};
}

std::optional<Extent> NeResources::First(std::uint16_t type) const {
  const Entries entries = EntriesOf(type);
  return entries.count > 0 ? EntryAt(entries.at) : std::nullopt;
}

std::optional<Extent> NeResources::Numbered(std::uint16_t type, std::uint16_t number) const {
  const Entries entries = EntriesOf(type);
  std::optional<Extent> found;
  for (std::size_t i = 0; i < entries.count; ++i) {
    const std::uint64_t at = entries.at + i * kResourceSize;
    const auto entry = file_.At(at, kResourceSize);
    if (!entry) return std::nullopt;
    if (entry->U16(6) != (kNumbered | number)) continue;
    if (found) return std::nullopt;
    found = EntryAt(at);
  }
  return found;
}

}  // namespace trovex::records
