#include "Paper/BitmapFile.h"

#include <cstdint>
#include <cstdlib>

#include "Platform/Platform.h"

namespace trovex {
namespace {

constexpr std::int64_t kLargestFile = 64LL << 20;
constexpr std::int32_t kMostPixels = 8192;  // either way
constexpr std::size_t kFileHeader = 14, kInfoHeader = 40;

// Reads numbers at places of the file, lowest byte first. What lies behind the end reads as 0 and
// spoils the reader.
class Reader {
 public:
  explicit Reader(std::string_view bytes) : bytes_(bytes) {}

  std::uint32_t Number(std::size_t place, std::size_t size) {
    if (place > bytes_.size() || size > bytes_.size() - place) {
      good_ = false;
      return 0;
    }
    std::uint32_t value = 0;
    for (std::size_t i = size; i-- > 0;) {
      value = value << 8 | static_cast<unsigned char>(bytes_[place + i]);
    }
    return value;
  }
  std::int32_t Signed(std::size_t place) { return static_cast<std::int32_t>(Number(place, 4)); }
  bool Good() const { return good_; }

 private:
  std::string_view bytes_;
  bool good_ = true;
};

struct Header {
  std::size_t pixels = 0, colours = 0;  // where they stand
  std::int32_t width = 0, height = 0;
  bool top_down = false;
  std::size_t bits = 0, colour_count = 0;
};

std::optional<Header> ReadHeader(Reader& reader) {
  Header header;
  const std::uint32_t info = reader.Number(kFileHeader, 4);
  header.pixels = reader.Number(10, 4);
  header.width = reader.Signed(18);
  const std::int32_t height = reader.Signed(22);
  header.bits = reader.Number(28, 2);
  const bool compressed = reader.Number(30, 4) != 0;
  if (reader.Number(0, 2) != 0x4D42 || info < kInfoHeader || compressed || !reader.Good())
    return {};
  if (header.width < 1 || header.width > kMostPixels) return {};
  if (height == 0 || height > kMostPixels || height < -kMostPixels) return {};
  header.height = std::abs(height);
  header.top_down = height < 0;
  header.colours = kFileHeader + info;
  header.colour_count = reader.Number(46, 4);
  const bool indexed = header.bits == 1 || header.bits == 4 || header.bits == 8;
  if (!indexed && header.bits != 24 && header.bits != 32) return {};
  if (indexed && header.colour_count == 0) header.colour_count = std::size_t{1} << header.bits;
  return header;
}

// The colour of one pixel: blue, green, red from the low byte on, as files hold it.
std::uint32_t PixelAt(Reader& reader, const Header& header, std::size_t row, std::size_t x) {
  if (header.bits >= 24) return reader.Number(row + x * header.bits / 8, 3);
  const std::size_t bit = x * header.bits;
  const std::uint32_t byte = reader.Number(row + bit / 8, 1);
  const std::uint32_t index = byte >> (8 - header.bits - bit % 8) & ((1u << header.bits) - 1);
  return index < header.colour_count ? reader.Number(header.colours + 4 * index, 3) : 0;
}

class ReadFile {
 public:
  explicit ReadFile(const Text& name) : handle_(CurrentPlatform().OpenRead(name)) {}
  ~ReadFile() {
    IgnoringErrors([&] { CurrentPlatform().Close(handle_); });
  }
  ReadFile(const ReadFile&) = delete;
  ReadFile& operator=(const ReadFile&) = delete;

  std::string Contents(std::size_t size) {
    std::string bytes(size, '\0');
    bytes.resize(CurrentPlatform().Read(handle_, bytes.data(), size));
    return bytes;
  }

 private:
  FileHandle handle_;
};

}  // namespace

std::optional<Bitmap> DecodeBitmap(std::string_view bytes) {
  Reader reader(bytes);
  const std::optional<Header> header = ReadHeader(reader);
  if (!header) return {};
  const auto width = static_cast<std::size_t>(header->width);
  const auto height = static_cast<std::size_t>(header->height);
  const std::size_t stride = (width * header->bits + 31) / 32 * 4;
  if (header->pixels > bytes.size() || bytes.size() - header->pixels < stride * height) return {};
  Bitmap bitmap{header->width, header->height, {}};
  bitmap.pixels.reserve(width * height * 3);
  for (std::size_t y = 0; y < height; ++y) {
    const std::size_t row = header->pixels + stride * (header->top_down ? y : height - 1 - y);
    for (std::size_t x = 0; x < width; ++x) {
      const std::uint32_t pixel = PixelAt(reader, *header, row, x);
      for (const int shift : {16, 8, 0}) bitmap.pixels += static_cast<char>(pixel >> shift & 0xFF);
    }
  }
  if (!reader.Good()) return {};
  return bitmap;
}

std::optional<Bitmap> ReadBitmap(const Text& file) {
  FileStatus status;
  if (!CurrentPlatform().GetFileStatus(file, status) || status.length > kLargestFile) return {};
  try {
    return DecodeBitmap(ReadFile(file).Contents(static_cast<std::size_t>(status.length)));
  } catch (const RuntimeError&) {
    return {};
  }
}

}  // namespace trovex
