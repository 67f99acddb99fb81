#include <algorithm>
#include <vector>

#include "Platform/Records/VersionResource.h"

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
constexpr std::uint32_t kSectorMask = 511;   // raw data begins at a sector, whatever is written
constexpr std::uint32_t kPageSize = 0x1000;  // below this alignment the file is mapped flat
constexpr std::size_t kMaxSections = 96;

constexpr std::size_t kTableSize = 16;  // header of a table of resources
constexpr std::size_t kEntrySize = 8;
constexpr std::uint32_t kSubtable = 0x80000000;
constexpr std::uint32_t kVersionType = 16;
constexpr std::uint32_t kMaxEntries = 4096;

struct Section {
  std::uint32_t address, size, offset;
};

// What of the headers counts.
struct Image {
  std::uint32_t resources = 0;  // address of the root table
  std::uint32_t headers_size = 0;
  bool flat = false;
  std::vector<Section> sections;
};

bool ReadOptionalHeader(ByteReader& file, std::uint64_t at, std::size_t size, Image& image) {
  const auto magic = file.At(at, 2);
  if (!magic) return false;
  const bool wide = magic->U16(0) == kMagic64;
  if (!wide && magic->U16(0) != kMagic32) return false;
  const std::size_t prefix = wide ? kOptionalPrefix64 : kOptionalPrefix32;
  const std::size_t count_at = wide ? kDirectoryCountAt64 : kDirectoryCountAt32;
  const auto header = file.At(at, prefix);
  if (!header || size < prefix || header->U32(count_at) <= kResourceDirectory) return false;
  image.resources = header->U32(count_at + 4 + kResourceDirectory * 8);
  image.headers_size = header->U32(kHeadersSizeAt);
  image.flat = header->U32(kSectionAlignmentAt) < kPageSize;
  return image.resources != 0;
}

bool ReadSections(ByteReader& file, std::uint64_t at, std::size_t count, Image& image) {
  if (count > kMaxSections) return false;
  for (std::size_t i = 0; i < count; ++i, at += kSectionSize) {
    const auto header = file.At(at, kSectionSize);
    if (!header) return false;
    image.sections.push_back({header->U32(12), header->U32(16), header->U32(20) & ~kSectorMask});
  }
  return true;
}

// Where an address of the loaded image lies in the file.
bool OffsetOf(const Image& image, std::uint32_t address, std::uint64_t& offset) {
  offset = address;
  if (image.flat || address < image.headers_size) return true;
  const auto holds = [address](const Section& section) {
    return address >= section.address && address - section.address < section.size;
  };
  const auto section = std::find_if(image.sections.begin(), image.sections.end(), holds);
  if (section == image.sections.end()) return false;
  offset = std::uint64_t{section->offset} + (address - section->address);
  return true;
}

// The tables of resources: type, name, language. Offsets in them count from the first one.
class ResourceTree {
 public:
  ResourceTree(ByteReader& file, std::uint64_t root) : file_(file), root_(root) {}

  // Each gives the offset of what the entry leads to, or nothing.
  std::optional<std::uint32_t> TypeTable(std::uint32_t type) {
    const auto table = file_.At(root_, kTableSize);
    if (!table) return std::nullopt;
    const std::uint32_t named = table->U16(12), numbered = table->U16(14);
    if (named + numbered > kMaxEntries) return std::nullopt;
    for (std::uint32_t i = named; i < named + numbered; ++i) {
      const auto entry = file_.At(root_ + kTableSize + i * kEntrySize, kEntrySize);
      if (!entry) return std::nullopt;
      if (entry->U32(0) == type) return Subtable(entry->U32(4));
    }
    return std::nullopt;
  }

  std::optional<std::uint32_t> FirstTable(std::uint32_t table) {
    const auto target = First(table);
    return target ? Subtable(*target) : std::nullopt;
  }

  std::optional<std::uint32_t> FirstLeaf(std::uint32_t table) {
    const auto target = First(table);
    return target && (*target & kSubtable) == 0 ? target : std::nullopt;
  }

  std::optional<ByteView> Leaf(std::uint32_t leaf) { return file_.At(root_ + leaf, 8); }

 private:
  std::optional<std::uint32_t> First(std::uint32_t at) {
    const auto table = file_.At(root_ + at, kTableSize + kEntrySize);
    if (!table || table->U16(12) + table->U16(14) == 0) return std::nullopt;
    return table->U32(kTableSize + 4);
  }

  static std::optional<std::uint32_t> Subtable(std::uint32_t target) {
    if ((target & kSubtable) == 0) return std::nullopt;
    return target & ~kSubtable;
  }

  ByteReader& file_;
  std::uint64_t root_;
};

std::string ReadRecord(ByteReader& file, const Image& image) {
  std::uint64_t root = 0;
  if (!OffsetOf(image, image.resources, root)) return {};
  ResourceTree tree(file, root);
  const auto names = tree.TypeTable(kVersionType);
  const auto languages = names ? tree.FirstTable(*names) : std::nullopt;
  const auto leaf = languages ? tree.FirstLeaf(*languages) : std::nullopt;
  const auto data = leaf ? tree.Leaf(*leaf) : std::nullopt;
  if (!data || data->U32(4) > kMaxVersionResource) return {};
  const std::uint32_t size = data->U32(4);
  std::uint64_t offset = 0;
  std::string record;
  if (OffsetOf(image, data->U32(0), offset)) file.Copy(offset, size, record);
  return record;
}

bool ReadImage(ByteReader& file, std::uint64_t header, Image& image) {
  const auto file_header = file.At(header, kFileHeaderSize);
  if (!file_header) return false;
  const std::size_t sections = file_header->U16(kSectionCountAt);
  const std::size_t optional_size = file_header->U16(kOptionalSizeAt);
  const std::uint64_t optional = header + kFileHeaderSize;
  return ReadOptionalHeader(file, optional, optional_size, image) &&
         ReadSections(file, optional + optional_size, sections, image);
}

}  // namespace

std::string ReadPeResource(ByteReader& file, std::uint64_t header) {
  Image image;
  return ReadImage(file, header, image) ? ReadRecord(file, image) : std::string();
}

bool HasPeResource(ByteReader& file, std::uint64_t header, std::uint16_t type) {
  Image image;
  std::uint64_t root = 0;
  if (!ReadImage(file, header, image) || !OffsetOf(image, image.resources, root)) return false;
  ResourceTree tree(file, root);
  const auto names = tree.TypeTable(type);
  return names && tree.FirstTable(*names).has_value();
}

}  // namespace trovex::records
