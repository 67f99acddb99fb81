#include "Platform/Records/IconResource.h"

#include "Platform/Records/Executable.h"

namespace trovex::records {
namespace {

constexpr std::size_t kHeadSize = 6;  // reserved, type, count of images
constexpr std::uint16_t kIcons = 1;
constexpr std::size_t kMaxImages = 64;

// The entry of an image: in a file with its length and place, in a group with its length and
// number.
constexpr std::size_t kFileEntrySize = 16;
constexpr std::size_t kGroupEntrySize = 14;
constexpr std::size_t kLengthAt = 8;
constexpr std::size_t kPlaceAt = 12;

// The head of an image, a bitmap of twice its height: colours, then the mask, which may be missing.
constexpr std::size_t kBitmapHeadSize = 40;
constexpr std::uint32_t kMaxSide = 1024;
constexpr std::uint32_t kMaxPalette = 256;
constexpr std::uint32_t kBitFields = 3;  // three masks stand before the colours
constexpr std::uint32_t kPngSignature = 0x474E5089;

bool IsInside(ByteReader& file, const Extent& place) {
  return place.size > 0 && file.At(place.offset + place.size - 1, 1).has_value();
}

bool IsDepth(std::uint16_t bits) {
  return bits == 1 || bits == 4 || bits == 8 || bits == 16 || bits == 24 || bits == 32;
}

// Bytes of the head, the palette and the colours; nothing for what is no bitmap of an icon.
std::optional<std::uint64_t> BytesNeeded(const ByteView& head) {
  const std::uint32_t width = head.U32(4), height = head.U32(8) / 2;
  const std::uint16_t bits = head.U16(14);
  const std::uint32_t compression = head.U32(16);
  std::uint32_t palette = head.U32(32);
  if (head.U32(0) != kBitmapHeadSize || head.U16(12) != 1 || !IsDepth(bits)) return std::nullopt;
  if (width == 0 || width > kMaxSide || height == 0 || height > kMaxSide) return std::nullopt;
  if ((compression != 0 && compression != kBitFields) || palette > kMaxPalette) return std::nullopt;
  if (palette == 0 && bits <= 8) palette = 1U << bits;
  const std::uint64_t masks = compression == kBitFields ? 3 : 0;
  const std::uint64_t row = (std::uint64_t{width} * bits + 31) / 32 * 4;
  return kBitmapHeadSize + 4 * (masks + palette) + row * height;
}

bool IsSoundImage(ByteReader& file, const Extent& place) {
  if (!IsInside(file, place)) return false;
  const auto head = file.At(place.offset, kBitmapHeadSize);
  if (!head) return false;
  if (head->U32(0) == kPngSignature) return true;
  const auto needed = BytesNeeded(*head);
  return needed && *needed <= place.size;
}

// The count of images where a head of icons stands, 0 elsewhere.
std::size_t ImagesOf(ByteReader& file, std::uint64_t offset) {
  const auto head = file.At(offset, kHeadSize);
  if (!head || head->U16(0) != 0 || head->U16(2) != kIcons) return 0;
  return head->U16(4) <= kMaxImages ? head->U16(4) : 0;
}

template <typename Resources>
bool HoldsGroup(ByteReader& file, const Resources& resources) {
  const auto group = resources.IsWhole() ? resources.First(kIconGroupType) : std::nullopt;
  if (!group || !IsInside(file, *group)) return false;
  const std::size_t images = ImagesOf(file, group->offset);
  if (images == 0 || group->size < kHeadSize + images * kGroupEntrySize) return false;
  for (std::size_t i = 0; i < images; ++i) {
    const auto entry = file.At(group->offset + kHeadSize + i * kGroupEntrySize, kGroupEntrySize);
    if (!entry) return false;
    const auto image = resources.Numbered(kIconType, entry->U16(kPlaceAt));
    if (!image || !IsSoundImage(file, *image)) return false;
  }
  return true;
}

bool IsIconFile(ByteReader& file) {
  const std::size_t images = ImagesOf(file, 0);
  for (std::size_t i = 0; i < images; ++i) {
    const auto entry = file.At(kHeadSize + i * kFileEntrySize, kFileEntrySize);
    if (!entry) return false;
    const Extent image{entry->U32(kPlaceAt), entry->U32(kLengthAt)};
    if (!IsSoundImage(file, image)) return false;
  }
  return images > 0;
}

}  // namespace

bool HoldsIcon(ByteSource& source) {
  ByteReader file(source);
  const bool in_program =
      OnResources(file, [&](const auto& resources) { return HoldsGroup(file, resources); });
  return in_program || IsIconFile(file);
}

}  // namespace trovex::records
