#include "support/ExecutableBuilder.h"

#include <array>
#include <cstdint>
#include <utility>

#include "Platform/Encoding.h"

namespace trovex::test {
namespace {

// --- Little-endian bytes ------------------------------------------------------------------------

class Bytes {
 public:
  Bytes& U8(unsigned value) {
    data_.push_back(static_cast<char>(value & 0xFF));
    return *this;
  }
  Bytes& U16(std::size_t value) {
    return U8(static_cast<unsigned>(value)).U8(static_cast<unsigned>(value >> 8));
  }
  Bytes& U32(std::size_t value) { return U16(value & 0xFFFF).U16((value >> 16) & 0xFFFF); }
  Bytes& Append(std::string_view bytes) {
    data_.append(bytes);
    return *this;
  }
  Bytes& PadTo(std::size_t offset) {
    if (data_.size() < offset) data_.resize(offset);
    return *this;
  }
  Bytes& Align(std::size_t boundary) {
    return PadTo((Size() + boundary - 1) / boundary * boundary);
  }
  void SetU16(std::size_t offset, std::size_t value) {
    data_.replace(offset, 2, Bytes().U16(value).Take());
  }
  std::size_t Size() const { return data_.size(); }
  std::string Take() { return std::move(data_); }

 private:
  std::string data_;
};

// --- Version records ----------------------------------------------------------------------------

enum class Layout { k8Bit, k16Bit };
enum class ValueKind { kBinary, kText };

// NUL-terminated text in the layout's characters.
std::string Characters(Layout layout, const std::string& text) {
  if (layout == Layout::k8Bit) return text + '\0';
  Bytes wide;
  for (const char16_t unit : FromCp1252(text)) wide.U16(unit);
  return wide.U16(0).Take();
}

// One node of the record. Every node starts on a four-byte boundary, so positions within it and
// within the record are aligned alike.
std::string Node(Layout layout, const std::string& key, ValueKind kind, const std::string& value,
                 const std::vector<std::string>& children) {
  const bool wide = layout == Layout::k16Bit;
  Bytes node;
  node.U16(0).U16(wide && kind == ValueKind::kText ? value.size() / 2 : value.size());
  if (wide) node.U16(kind == ValueKind::kText ? 1 : 0);
  node.Append(Characters(layout, key)).Align(4).Append(value);
  for (const std::string& child : children) node.Align(4).Append(child);
  node.SetU16(0, node.Size());
  return node.Take();
}

std::string FixedFileInfo(Layout layout) {
  constexpr std::uint32_t kSignature = 0xFEEF04BD, kOneDotZero = 0x00010000;
  Bytes info;
  info.U32(kSignature).U32(kOneDotZero);
  info.U32(kOneDotZero).U32(0).U32(kOneDotZero).U32(0);  // file and product version 1.0.0.0
  info.U32(0x3F).U32(0);                                 // mask of the flags, flags
  info.U32(layout == Layout::k8Bit ? 1 : 4);             // 16-bit or 32-bit Windows
  info.U32(1).U32(0).U32(0).U32(0);                      // an application; no subtype, no date
  return info.Take();
}

std::string VersionBlock(Layout layout, const VersionStrings& strings) {
  std::vector<std::string> entries;
  for (const auto& [key, value] : strings) {
    entries.push_back(Node(layout, key, ValueKind::kText, Characters(layout, value), {}));
  }
  const std::string table = Node(layout, "040C04E4", ValueKind::kText, "", entries);
  const std::string translation =
      Node(layout, "Translation", ValueKind::kBinary, Bytes().U16(0x040C).U16(0x04E4).Take(), {});
  return Node(layout, "VS_VERSION_INFO", ValueKind::kBinary, FixedFileInfo(layout),
              {Node(layout, "StringFileInfo", ValueKind::kText, "", {table}),
               Node(layout, "VarFileInfo", ValueKind::kText, "", {translation})});
}

// --- Resources ----------------------------------------------------------------------------------

constexpr unsigned kTypeIcon = 3, kTypeGroupIcon = 14, kTypeVersion = 16;
constexpr unsigned kIconSide = 32;

struct Resource {
  unsigned type;
  std::string data;
};

// A device-independent bitmap with its mask: a yellow disc with a blue rim on nothing.
std::string IconImage() {
  constexpr unsigned kBlue = 9, kYellow = 14;
  Bytes image;
  image.U32(40).U32(kIconSide).U32(2 * kIconSide).U16(1).U16(4).PadTo(40);
  for (unsigned colour = 0; colour < 16; ++colour) {
    const unsigned level = colour < 8 ? 0x80 : 0xFF;
    image.U8(colour & 1 ? level : 0).U8(colour & 2 ? level : 0).U8(colour & 4 ? level : 0).U8(0);
  }
  Bytes mask;
  for (unsigned y = 0; y < kIconSide; ++y) {
    std::uint32_t outside = 0;
    std::array<unsigned, kIconSide> row{};
    for (unsigned x = 0; x < kIconSide; ++x) {
      const int dx = 2 * static_cast<int>(x) - 31, dy = 2 * static_cast<int>(y) - 31;
      const int distance = dx * dx + dy * dy;
      outside = outside << 1 | (distance > 900 ? 1U : 0U);
      row[x] = distance > 900 ? 0 : distance > 700 ? kBlue : kYellow;
    }
    for (unsigned x = 0; x < kIconSide; x += 2) image.U8(row[x] << 4 | row[x + 1]);
    mask.U8(outside >> 24).U8(outside >> 16).U8(outside >> 8).U8(outside);
  }
  return image.Append(mask.Take()).Take();
}

std::string IconGroup(std::size_t image_size) {
  constexpr unsigned kColours = 16, kBits = 4, kFirstIcon = 1;
  Bytes group;
  group.U16(0).U16(1).U16(1);  // reserved, icons, one of them
  group.U8(kIconSide).U8(kIconSide).U8(kColours).U8(0);
  group.U16(1).U16(kBits).U32(image_size).U16(kFirstIcon);
  return group.Take();
}

// In ascending order of types, as both formats want them.
std::vector<Resource> Resources(std::string_view block, Icon icon) {
  std::vector<Resource> resources;
  if (icon == Icon::kPresent) {
    std::string image = IconImage();
    const std::size_t size = image.size();
    resources.push_back({kTypeIcon, std::move(image)});
    resources.push_back({kTypeGroupIcon, IconGroup(size)});
  }
  if (!block.empty()) resources.push_back({kTypeVersion, std::string(block)});
  return resources;
}

// --- Executables --------------------------------------------------------------------------------

constexpr std::size_t kMzSize = 0x40;

// An MZ header that leads to a new header right behind it.
Bytes MzHeader() {
  Bytes header;
  header.Append("MZ").U16(kMzSize).U16(1).U16(0).U16(kMzSize / 16).U16(0).U16(0xFFFF);
  header.PadTo(0x18).U16(0x40);  // where relocations would be: this value tells of a new header
  header.PadTo(0x3C).U32(kMzSize);
  return header;
}

constexpr unsigned kNeAlignmentShift = 4;
constexpr std::size_t kNeHeaderSize = 0x40;

std::size_t NeUnits(std::size_t bytes) {
  return (bytes + (1U << kNeAlignmentShift) - 1) >> kNeAlignmentShift;
}

std::size_t NeTableSize(std::size_t resources) {
  return resources == 0 ? 0 : 2 + resources * (8 + 12) + 2 + 1;
}

// The resource table of resources whose data follows from `first_unit` on; nothing for none.
std::string NeResourceTable(const std::vector<Resource>& resources, std::size_t first_unit) {
  constexpr unsigned kById = 0x8000, kMovablePureDiscardable = 0x1030;
  if (resources.empty()) return {};
  Bytes table;
  table.U16(kNeAlignmentShift);
  std::size_t unit = first_unit;
  for (const Resource& resource : resources) {
    const std::size_t units = NeUnits(resource.data.size());
    table.U16(kById | resource.type).U16(1).U32(0);
    table.U16(unit).U16(units).U16(kMovablePureDiscardable).U16(kById | 1).U16(0).U16(0);
    unit += units;
  }
  return table.U16(0).U8(0).Take();
}

// The header of a program without segments. Offsets are relative to the header.
std::string NeHeader(std::size_t resident_names, std::size_t names_size) {
  const std::size_t imports = resident_names + names_size, entries = imports + 1;
  constexpr std::size_t kEntriesSize = 2;
  Bytes header;
  header.Append("NE").U8(5).U8(1).U16(entries).U16(kEntriesSize).U32(0);
  header.U16(0x0302);                  // own data per instance, runs under the window system
  header.PadTo(0x20).U16(names_size);  // names that stay on the disk
  header.U16(kNeHeaderSize);           // segments (none)
  header.U16(kNeHeaderSize);           // resources
  header.U16(resident_names);          // names kept in memory
  header.U16(imports).U16(imports);    // modules (none), imported names
  header.U32(kMzSize + entries + kEntriesSize);
  header.U16(0).U16(kNeAlignmentShift).U16(0).U8(2);  // for Windows
  header.PadTo(0x3E).U16(0x030A);
  return header.Take();
}

constexpr std::size_t kPeOptionalSize = 224, kPeFileAlignment = 0x200, kPeSectionAlignment = 0x1000;

std::size_t RoundUp(std::size_t value, std::size_t boundary) {
  return (value + boundary - 1) / boundary * boundary;
}

// A directory of one level holding one entry.
void OneEntryDirectory(Bytes& tree, unsigned id, std::size_t target) {
  tree.U32(0).U32(0).U32(0).U16(0).U16(1).U32(id).U32(target);
}

// The three levels (type, name, language), the data entries and the data, for a section at `base`.
std::string PeResourceSection(const std::vector<Resource>& resources, std::size_t base) {
  constexpr std::size_t kSubdirectory = 0x80000000, kOneEntry = 24, kDataEntry = 16;
  constexpr std::size_t kBranch = 2 * kOneEntry + kDataEntry;
  constexpr unsigned kFirstName = 1, kFrench = 0x040C;
  const std::size_t branches = 16 + 8 * resources.size();
  Bytes tree;
  tree.U32(0).U32(0).U32(0).U16(0).U16(resources.size());
  std::size_t branch = branches;
  for (const Resource& resource : resources) {
    tree.U32(resource.type).U32(kSubdirectory | branch);
    branch += kBranch;
  }
  std::size_t data = RoundUp(branch, 8);
  for (const Resource& resource : resources) {
    OneEntryDirectory(tree, kFirstName, kSubdirectory | (tree.Size() + kOneEntry));
    OneEntryDirectory(tree, kFrench, tree.Size() + kOneEntry);
    tree.U32(base + data).U32(resource.data.size()).U32(1252).U32(0);
    data = RoundUp(data + resource.data.size(), 8);
  }
  for (const Resource& resource : resources) tree.Align(8).Append(resource.data);
  return tree.Take();
}

std::string PeCoffHeader(unsigned sections) {
  constexpr unsigned kI386 = 0x014C, kExecutable32BitStripped = 0x010F;
  Bytes header;
  header.Append(std::string_view("PE\0\0", 4)).U16(kI386).U16(sections).U32(0).U32(0).U32(0);
  return header.U16(kPeOptionalSize).U16(kExecutable32BitStripped).Take();
}

// `resources` is the length of the section, 0 if there is none.
std::string PeOptionalHeader(std::size_t resources) {
  constexpr unsigned kMagic32 = 0x010B, kWindowed = 2, kDirectories = 16;
  Bytes header;
  header.U16(kMagic32).U8(2).U8(50).U32(0).U32(RoundUp(resources, kPeFileAlignment)).U32(0);
  header.U32(0).U32(kPeSectionAlignment).U32(kPeSectionAlignment);  // entry, code, data
  header.U32(0x00400000).U32(kPeSectionAlignment).U32(kPeFileAlignment);
  header.U16(4).U16(0).U16(0).U16(0).U16(4).U16(0).U32(0);  // systems and image, versions
  header.U32(kPeSectionAlignment + RoundUp(resources, kPeSectionAlignment));
  header.U32(kPeFileAlignment).U32(0).U16(kWindowed).U16(0);
  header.U32(0x100000).U32(0x1000).U32(0x100000).U32(0x1000).U32(0).U32(kDirectories);
  header.U32(0).U32(0).U32(0).U32(0);  // exports, imports
  header.U32(resources == 0 ? 0 : kPeSectionAlignment).U32(resources);
  return header.PadTo(kPeOptionalSize).Take();
}

std::string PeSectionHeader(std::size_t size) {
  constexpr std::size_t kReadableData = 0x40000040;
  Bytes header;
  header.Append(".rsrc").PadTo(8).U32(size).U32(kPeSectionAlignment);
  header.U32(RoundUp(size, kPeFileAlignment)).U32(kPeFileAlignment).U32(0).U32(0).U32(0);
  return header.U32(kReadableData).Take();
}

// --- Archives -----------------------------------------------------------------------------------

constexpr std::size_t kZipEndSize = 22, kZipLocalSize = 30, kZipCentralSize = 46;
constexpr std::string_view kZipMember = "ZERO.DAT";
constexpr std::size_t kZipOverhead =
    kZipEndSize + kZipLocalSize + kZipCentralSize + 2 * kZipMember.size();

// A zero byte leaves the sum to its own lowest byte, which picks one of these.
constexpr std::array<std::uint32_t, 256> CrcTable() {
  std::array<std::uint32_t, 256> table{};
  for (std::uint32_t byte = 0; byte < table.size(); ++byte) {
    std::uint32_t crc = byte;
    for (int bit = 0; bit < 8; ++bit) crc = (crc >> 1) ^ ((crc & 1) != 0 ? 0xEDB88320U : 0U);
    table[byte] = crc;
  }
  return table;
}

std::uint32_t CrcOfZeros(std::size_t length) {
  static constexpr std::array<std::uint32_t, 256> kTable = CrcTable();
  const std::uint32_t* const table = kTable.data();
  std::uint32_t crc = 0xFFFFFFFF;
  for (std::size_t byte = 0; byte < length; ++byte) crc = (crc >> 8) ^ table[crc & 0xFF];
  return ~crc;
}

// What the local and the central header share: versions to names' lengths.
void ZipMemberFields(Bytes& header, std::uint32_t crc, std::size_t length) {
  constexpr unsigned kNoon = 12U << 11, kFirstOfMarch1997 = 17U << 9 | 3U << 5 | 1U;
  header.U16(10).U16(0).U16(0).U16(kNoon).U16(kFirstOfMarch1997).U32(crc);
  header.U32(length).U32(length).U16(kZipMember.size()).U16(0);
}

std::string ZipEnd(unsigned members, std::size_t directory_size, std::size_t directory_offset,
                   std::size_t comment) {
  Bytes end;
  end.Append("PK\5\6").U16(0).U16(0).U16(members).U16(members);
  end.U32(directory_size).U32(directory_offset).U16(comment);
  return end.Append(std::string(comment, ' ')).Take();
}

}  // namespace

std::string VersionBlock8(const VersionStrings& strings) {
  return VersionBlock(Layout::k8Bit, strings);
}

std::string VersionBlock16(const VersionStrings& strings) {
  return VersionBlock(Layout::k16Bit, strings);
}

std::string NeExecutable(std::string_view block, Icon icon) {
  static constexpr std::string_view kNames("\6SAMPLE\0\0\0", 10);
  const std::vector<Resource> resources = Resources(block, icon);
  const std::size_t names = kNeHeaderSize + NeTableSize(resources.size());
  const std::size_t first_unit = NeUnits(kMzSize + names + kNames.size() + 3 + kNames.size());
  Bytes file = MzHeader();
  file.Append(NeHeader(names, kNames.size()));
  file.Append(NeResourceTable(resources, first_unit)).Append(kNames);
  file.U8(0).U16(0).Append(kNames);  // no imports, no entries; names that stay on the disk
  file.Align(1U << kNeAlignmentShift);
  for (const Resource& resource : resources) {
    file.Append(resource.data).Align(1U << kNeAlignmentShift);
  }
  return file.Take();
}

std::string PeExecutable(std::string_view block, Icon icon) {
  const std::vector<Resource> resources = Resources(block, icon);
  std::string section;
  if (!resources.empty()) section = PeResourceSection(resources, kPeSectionAlignment);
  Bytes file = MzHeader();
  file.Append(PeCoffHeader(section.empty() ? 0 : 1)).Append(PeOptionalHeader(section.size()));
  if (!section.empty()) file.Append(PeSectionHeader(section.size()));
  file.Align(kPeFileAlignment).Append(section).Align(kPeFileAlignment);
  return file.Take();
}

std::string DosExecutable() {
  constexpr std::size_t kHeaderSize = 32;
  Bytes header;
  header.Append("MZ").U16(kHeaderSize).U16(1).U16(0).U16(kHeaderSize / 16).U16(0).U16(0xFFFF);
  header.PadTo(0x18).U16(0x1C);
  return header.PadTo(kHeaderSize).Take();
}

std::string IconFile() {
  constexpr std::size_t kDirectorySize = 6 + 16;
  const std::string image = IconImage();
  Bytes file;
  file.U16(0).U16(1).U16(1).U8(kIconSide).U8(kIconSide).U8(16).U8(0).U16(1).U16(4);
  return file.U32(image.size()).U32(kDirectorySize).Append(image).Take();
}

std::string PngIconFile() {
  static constexpr std::string_view kImage(
      "\x89PNG\r\n\x1A\n"
      "\0\0\0\x0DIHDR\0\0\0\x20\0\0\0\x20\x08\x06\0\0\0\x73\x7A\x7A\xF4"  // 4 x 8 bits a pixel
      "\0\0\0\x1AIDAT\x78\xDA\xED\xC1\x01\x01\0\0\0\x82\x20\xFF\xAF\x6E\x48\x40\x01"
      "\0\0\0\xEF\x06\x10\x20\0\x01\xC9\xB5\xC3\xB1"
      "\0\0\0\0IEND\xAE\x42\x60\x82",
      8 + 25 + 38 + 12);
  constexpr std::size_t kDirectorySize = 6 + 16;
  Bytes file;
  file.U16(0).U16(1).U16(1).U8(kIconSide).U8(kIconSide).U8(0).U8(0).U16(1).U16(32);
  return file.U32(kImage.size()).U32(kDirectorySize).Append(kImage).Take();
}

std::string ZipArchive(std::size_t size) {
  // Too small for a member: the bytes stand in the archive's comment.
  if (size < kZipOverhead) return ZipEnd(0, 0, 0, size - kZipEndSize);
  const std::size_t length = size - kZipOverhead;
  const std::uint32_t crc = CrcOfZeros(length);
  Bytes file;
  file.Append("PK\3\4");
  ZipMemberFields(file, crc, length);
  file.Append(kZipMember).PadTo(file.Size() + length);
  const std::size_t directory = file.Size();
  file.Append("PK\1\2").U16(20);
  ZipMemberFields(file, crc, length);
  file.U16(0).U16(0).U16(0).U32(0).U32(0).Append(kZipMember);
  const std::size_t directory_size = file.Size() - directory;
  return file.Append(ZipEnd(1, directory_size, directory, 0)).Take();
}

}  // namespace trovex::test
