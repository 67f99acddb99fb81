#include "Platform/Records/PngImage.h"

#include <algorithm>

namespace trovex::records {
namespace {

constexpr std::uint32_t kSignature[] = {0x474E5089, 0x0A1A0A0D};
constexpr std::size_t kSignatureSize = 8;

// Every chunk: length, type, contents, a sum over type and contents. Numbers stand highest byte
// first.
constexpr std::size_t kChunkFrame = 12, kChunkHead = 8, kTypeSize = 4, kSumSize = 4;
constexpr std::uint32_t kHeader = 0x49484452;  // "IHDR", the first one: width, height
constexpr std::size_t kHeaderSize = 13;
constexpr std::uint32_t kColours = 0x49444154;  // "IDAT"
constexpr std::uint32_t kEnd = 0x49454E44;      // "IEND", the last one
constexpr int kMaxChunks = 1024;
constexpr std::uint64_t kMaxSize = std::uint64_t{1} << 20;

std::uint32_t HighestFirst(const ByteView& bytes, std::size_t at) {
  const std::uint32_t number = bytes.U32(at);
  return number << 24 | (number & 0xFF00) << 8 | (number >> 8 & 0xFF00) | number >> 24;
}

std::uint32_t SumWith(std::uint32_t sum, std::uint32_t byte) {
  sum ^= byte;
  for (int bit = 0; bit < 8; ++bit) sum = (sum >> 1) ^ ((sum & 1) != 0 ? 0xEDB88320U : 0U);
  return sum;
}

// Whether `size` bytes have the sum that stands behind them.
bool HasItsSum(ByteReader& file, std::uint64_t at, std::uint64_t size) {
  std::uint32_t sum = 0xFFFFFFFF;
  while (size > 0) {
    const std::size_t part = static_cast<std::size_t>(std::min<std::uint64_t>(size, 1024));
    const auto bytes = file.At(at, part);
    if (!bytes) return false;
    for (std::size_t i = 0; i < part; ++i) sum = SumWith(sum, bytes->U8(i));
    at += part;
    size -= part;
  }
  const auto written = file.At(at, kSumSize);
  return written && HighestFirst(*written, 0) == ~sum;
}

bool IsSide(std::uint32_t side, std::uint32_t most) {
  return side > 0 && side <= most;
}

bool BeginsAsPng(ByteReader& file, const Extent& place, std::uint32_t most) {
  const auto head = file.At(place.offset, kSignatureSize + kChunkHead + kHeaderSize);
  if (!head || head->U32(0) != kSignature[0] || head->U32(4) != kSignature[1]) return false;
  return HighestFirst(*head, 8) == kHeaderSize && HighestFirst(*head, 12) == kHeader &&
         IsSide(HighestFirst(*head, 16), most) && IsSide(HighestFirst(*head, 20), most);
}

}  // namespace

bool IsSoundPng(ByteReader& file, const Extent& place, std::uint32_t most) {
  if (place.size < kSignatureSize || place.size > kMaxSize) return false;
  if (!BeginsAsPng(file, place, most)) return false;
  std::uint64_t at = place.offset + kSignatureSize;
  const std::uint64_t end = place.offset + place.size;
  bool colours = false;
  for (int chunks = 0; chunks < kMaxChunks && end - at >= kChunkFrame; ++chunks) {
    const auto head = file.At(at, kChunkHead);
    if (!head) return false;
    const std::uint32_t size = HighestFirst(*head, 0), type = HighestFirst(*head, kTypeSize);
    if (size > end - at - kChunkFrame || !HasItsSum(file, at + kTypeSize, kTypeSize + size)) break;
    if (type == kEnd) return colours;
    colours = colours || type == kColours;
    at += kChunkFrame + size;
  }
  return false;
}

}  // namespace trovex::records
