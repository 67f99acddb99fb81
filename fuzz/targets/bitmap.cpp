// Bitmap files.
#include "Paper/BitmapFile.h"
#include "support/Target.h"

namespace trovex::fuzz {
namespace {

constexpr int kMostPixels = 8192;

bool Same(const std::optional<Bitmap>& a, const std::optional<Bitmap>& b) {
  if (!a || !b) return a.has_value() == b.has_value();
  return a->width == b->width && a->height == b->height && a->pixels == b->pixels;
}

void Number(std::string& bytes, std::uint32_t number, int size) {
  for (; size > 0; --size, number >>= 8) bytes += static_cast<char>(number & 0xFF);
}

// A picture of 5 by 3 pixels; all pixels hold the same byte.
std::string BitmapFile(unsigned bits, int height) {
  const unsigned colours = bits > 8 ? 0 : 1u << bits, stride = (5 * bits + 31) / 32 * 4;
  std::string file = "BM";
  for (const std::uint32_t number : {0u, 0u, 54 + 4 * colours, 40u, 5u}) Number(file, number, 4);
  Number(file, static_cast<std::uint32_t>(height), 4);
  Number(file, 1, 2);
  Number(file, bits, 2);
  for (int field = 0; field < 6; ++field) Number(file, 0, 4);
  for (unsigned colour = 0; colour < colours; ++colour) Number(file, colour * 0x010203, 4);
  return file + std::string(3 * stride, '\x5A');
}

}  // namespace

void Try(std::string_view input) {
  const std::optional<Bitmap> bitmap = DecodeBitmap(input);
  if (bitmap) {
    Promise(bitmap->width > 0 && bitmap->width <= kMostPixels, "a width has its limits");
    Promise(bitmap->height > 0 && bitmap->height <= kMostPixels, "a height has its limits");
    const auto pixels =
        static_cast<std::size_t>(bitmap->width) * 3 * static_cast<std::size_t>(bitmap->height);
    Promise(bitmap->pixels.size() == pixels, "three bytes are a pixel");
  }
  Promise(Same(DecodeBitmap(input), bitmap), "the same bytes are the same picture");
  const std::optional<Bitmap> cut = DecodeBitmap(input.substr(0, input.size() - input.size() / 8));
  Promise(!cut || Same(cut, bitmap), "a file cut short is the whole picture or none");
}

void Seeds(const TakeSeed& take) {
  for (const unsigned bits : {1u, 4u, 8u, 24u, 32u}) {
    take("up-" + std::to_string(bits), BitmapFile(bits, 3));
    take("down-" + std::to_string(bits), BitmapFile(bits, -3));
  }
}

}  // namespace trovex::fuzz
