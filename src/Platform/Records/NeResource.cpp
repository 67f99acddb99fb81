#include "Platform/Records/VersionResource.h"

namespace trovex::records {
namespace {

constexpr std::size_t kNeHeaderSize = 0x40;
constexpr std::size_t kResourceTableAt = 0x24;  // relative to the header, as are all tables
constexpr std::size_t kResidentNamesAt = 0x26;
constexpr std::size_t kTargetSystemAt = 0x36;
constexpr std::uint16_t kTargetOs2 = 1;  // whose resource table looks otherwise

constexpr std::uint16_t kNumbered = 0x8000;  // marks a type's number instead of its name
constexpr std::uint16_t kVersionType = 16;
constexpr std::size_t kTypeSize = 8;       // type, count, reserved
constexpr std::size_t kResourceSize = 12;  // offset, length, flags, name, reserved

constexpr unsigned kMaxShift = 15;
constexpr int kMaxTypes = 1024;

// The first resource of the version type; offset and length count in units of 1 << shift.
std::string ReadRecord(ByteReader& file, std::uint64_t at, unsigned shift) {
  const auto resource = file.At(at, kResourceSize);
  if (!resource) return {};
  const std::uint64_t offset = std::uint64_t{resource->U16(0)} << shift;
  const std::uint64_t length = std::uint64_t{resource->U16(2)} << shift;
  std::string record;
  if (length <= kMaxVersionResource) file.Copy(offset, static_cast<std::size_t>(length), record);
  return record;
}

// Where the entries of a type stand; nothing where the file has none of it.
struct TypeEntries {
  std::uint64_t at;
  unsigned shift;
};

std::optional<TypeEntries> FindType(ByteReader& file, std::uint64_t header, std::uint16_t wanted) {
  const auto ne = file.At(header, kNeHeaderSize);
  if (!ne || (ne->U16(kTargetSystemAt) & 0xFF) == kTargetOs2) return std::nullopt;
  // A file without resources lets both tables begin at the same place.
  if (ne->U16(kResourceTableAt) == ne->U16(kResidentNamesAt)) return std::nullopt;
  std::uint64_t at = header + ne->U16(kResourceTableAt);
  const auto table = file.At(at, 2);
  if (!table || table->U16(0) > kMaxShift) return std::nullopt;
  const unsigned shift = table->U16(0);
  at += 2;
  for (int types = 0; types < kMaxTypes; ++types) {
    const auto type = file.At(at, kTypeSize);
    if (!type || type->U16(0) == 0) return std::nullopt;
    const std::size_t count = type->U16(2);
    at += kTypeSize;
    if (type->U16(0) == wanted && count > 0) return TypeEntries{at, shift};
    at += count * kResourceSize;
  }
  return std::nullopt;
}

}  // namespace

std::string ReadNeResource(ByteReader& file, std::uint64_t header) {
  const auto entries = FindType(file, header, kNumbered | kVersionType);
  return entries ? ReadRecord(file, entries->at, entries->shift) : std::string();
}

bool HasNeResource(ByteReader& file, std::uint64_t header, std::uint16_t type) {
  return FindType(file, header, kNumbered | type).has_value();
}

}  // namespace trovex::records
