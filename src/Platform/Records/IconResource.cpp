#include "Platform/Records/IconResource.h"

#include <algorithm>
#include <cstdlib>

#include "Platform/Records/Executable.h"
#include "Platform/Records/PngImage.h"

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
constexpr std::uint32_t kPlain = 0;  // neither compressed nor with masks of bits
constexpr std::uint32_t kPngSignature = 0x474E5089;

constexpr std::uint64_t kMaxImage = 8 << 20;

bool IsInside(ByteReader& file, const Extent& place) {
  return place.size > 0 && file.At(place.offset + place.size - 1, 1).has_value();
}

bool IsDepth(std::uint16_t bits) {
  return bits == 1 || bits == 4 || bits == 8 || bits == 16 || bits == 24 || bits == 32;
}

std::uint64_t RowBytes(std::uint32_t width, std::uint16_t bits) {
  return (std::uint64_t{width} * bits + 31) / 32 * 4;
}

bool IsSide(std::uint32_t pixels) {
  return pixels > 0 && pixels <= kMaxSide;
}

// The colours of the palette, by its head's count or, without one, as many as there can be.
std::uint32_t ColoursOf(const ByteView& head) {
  const std::uint16_t bits = head.U16(14);
  const std::uint32_t colours = head.U32(32);
  return colours == 0 && bits <= 8 ? 1U << bits : colours;
}

// Bytes of the head, the palette and the colours; nothing for what is no bitmap of an icon: that is
// one of plain colours, since systems differ in what else they take.
std::optional<std::uint64_t> BytesNeeded(const ByteView& head) {
  const std::uint32_t width = head.U32(4), height = head.U32(8) / 2, colours = ColoursOf(head);
  const std::uint16_t bits = head.U16(14);
  if (head.U32(0) != kBitmapHeadSize || head.U16(12) != 1 || !IsDepth(bits)) return std::nullopt;
  if (!IsSide(width) || !IsSide(height) || head.U32(16) != kPlain) return std::nullopt;
  if (colours > (bits <= 8 ? 1U << bits : kMaxPalette)) return std::nullopt;
  return kBitmapHeadSize + 4 * std::uint64_t{colours} + RowBytes(width, bits) * height;
}

bool IsSoundImage(ByteReader& file, const Extent& place) {
  if (!IsInside(file, place)) return false;
  const auto head = file.At(place.offset, kBitmapHeadSize);
  if (!head) return false;
  if (head->U32(0) == kPngSignature) return IsSoundPng(file, place, kMaxSide);
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

// How far an image is from what is wanted: the size counts before the colours.
int Misfit(const ByteView& entry, int pixels) {
  const int width = entry.U16(0) & 0xFF;
  const int bits = std::min<int>(entry.U16(6), 32);
  return std::abs((width == 0 ? 256 : width) - pixels) * 64 + 32 - bits;
}

// Where the entry of the image that suits best stands, of those behind the head at `offset`.
std::optional<ByteView> BestEntry(ByteReader& file, std::uint64_t offset, std::size_t entry_size,
                                  int pixels) {
  std::uint64_t best = 0;
  int least = 0;
  const std::size_t images = ImagesOf(file, offset);
  for (std::size_t i = 0; i < images; ++i) {
    const std::uint64_t at = offset + kHeadSize + i * entry_size;
    const auto entry = file.At(at, entry_size);
    if (!entry) break;
    const int misfit = Misfit(*entry, pixels);
    if (best != 0 && misfit >= least) continue;
    best = at;
    least = misfit;
  }
  return best != 0 ? file.At(best, entry_size) : std::nullopt;
}

template <typename Resources>
std::optional<Extent> BestInGroup(ByteReader& file, const Resources& resources, int pixels) {
  const auto group = resources.First(kIconGroupType);
  const auto entry = group ? BestEntry(file, group->offset, kGroupEntrySize, pixels) : std::nullopt;
  return entry ? resources.Numbered(kIconType, entry->U16(kPlaceAt)) : std::nullopt;
}

std::optional<Extent> BestInFile(ByteReader& file, int pixels) {
  const auto entry = BestEntry(file, 0, kFileEntrySize, pixels);
  if (!entry) return std::nullopt;
  return Extent{entry->U32(kPlaceAt), entry->U32(kLengthAt)};
}

// A mask that a bitmap lacks hides nothing.
void AddMask(std::string& bitmap) {
  const ByteView head(bitmap);
  if (head.U32(0) == kPngSignature) return;
  const std::uint32_t width = head.U32(4), height = head.U32(8) / 2;
  const std::uint64_t whole = BytesNeeded(head).value_or(0) + RowBytes(width, 1) * height;
  bitmap.resize(std::max<std::uint64_t>(bitmap.size(), whole));
}

}  // namespace

std::string IconImage(ByteSource& source, int pixels) {
  if (!HoldsIcon(source)) return {};
  ByteReader file(source);
  auto place = OnResources(
      file, [&](const auto& resources) { return BestInGroup(file, resources, pixels); });
  if (!place) place = BestInFile(file, pixels);
  std::string image;
  if (!place || place->size > kMaxImage || !file.Copy(place->offset, place->size, image)) return {};
  AddMask(image);
  return image;
}

bool HoldsIcon(ByteSource& source) {
  ByteReader file(source);
  const bool in_program =
      OnResources(file, [&](const auto& resources) { return HoldsGroup(file, resources); });
  return in_program || IsIconFile(file);
}

}  // namespace trovex::records
