#include "support/SampleDiscMedia.h"

#include <cstddef>
#include <vector>

namespace trovex::test {
namespace {

void Put(std::string& bytes, std::size_t value, int width) {
  for (int i = 0; i < width; ++i) bytes.push_back(static_cast<char>(value >> (8 * i) & 0xFF));
}

// The points of a chessboard as codes of four bits, two a byte, lower half first. A clearing code
// before each pair of points keeps the table of codes, and so their width, from growing.
std::string ChessboardCodes(std::size_t side) {
  constexpr std::size_t kClear = 8, kEnd = 9;
  std::vector<std::size_t> codes;
  for (std::size_t point = 0; point < side * side; ++point) {
    if (point % 2 == 0) codes.push_back(kClear);
    codes.push_back((point / side / 2 + point % side / 2) % 2);
  }
  codes.push_back(kEnd);
  codes.resize((codes.size() + 1) / 2 * 2);
  std::string bytes;
  for (std::size_t i = 0; i < codes.size(); i += 2) Put(bytes, codes[i] | codes[i + 1] << 4, 1);
  return bytes;
}

}  // namespace

std::string BmpPicture() {
  constexpr std::size_t kSide = 32, kHeaders = 14 + 40, kBytes = 3 * kSide * kSide;
  std::string file = "BM";
  Put(file, kHeaders + kBytes, 4);
  Put(file, 0, 4);
  Put(file, kHeaders, 4);
  Put(file, 40, 4);
  Put(file, kSide, 4);
  Put(file, kSide, 4);
  Put(file, 1, 2);
  Put(file, 24, 2);
  file.resize(kHeaders);
  for (std::size_t point = 0; point < kSide * kSide; ++point) {
    const std::size_t band = point / kSide / 4;
    Put(file, 0x80 - 0x10 * band, 1);
    Put(file, 0x20 + 0x18 * band, 1);
    Put(file, 0xFF, 1);
  }
  return file;
}

std::string GifPicture() {
  constexpr std::size_t kSide = 16, kCodeBits = 3;
  const std::string codes = ChessboardCodes(kSide);
  std::string file = "GIF87a";
  Put(file, kSide, 2);
  Put(file, kSide, 2);
  Put(file, 0xA2, 1);  // a table of eight colours
  Put(file, 0, 2);
  for (std::size_t colour = 0; colour < 8; ++colour)
    Put(file, colour == 0 ? 0xFFFFFF : 0x803000, 3);
  Put(file, ',', 1);
  Put(file, 0, 4);
  Put(file, kSide, 2);
  Put(file, kSide, 2);
  Put(file, 0, 1);
  Put(file, kCodeBits, 1);
  for (std::size_t at = 0; at < codes.size(); at += 255) {
    const std::string block = codes.substr(at, 255);
    Put(file, block.size(), 1);
    file += block;
  }
  Put(file, 0, 1);
  Put(file, ';', 1);
  return file;
}

std::string WavSound() {
  constexpr std::size_t kRate = 8000, kSamples = kRate / 4, kPeriod = 16;
  std::string file = "RIFF";
  Put(file, 36 + kSamples, 4);
  file += "WAVEfmt ";
  Put(file, 16, 4);
  Put(file, 1, 2);
  Put(file, 1, 2);
  Put(file, kRate, 4);
  Put(file, kRate, 4);
  Put(file, 1, 2);
  Put(file, 8, 2);
  file += "data";
  Put(file, kSamples, 4);
  for (std::size_t i = 0; i < kSamples; ++i) {
    const std::size_t amplitude = 100 * (kSamples - i) / kSamples;
    Put(file, i % kPeriod < kPeriod / 2 ? 128 + amplitude : 128 - amplitude, 1);
  }
  return file;
}

std::string HlpFile() {
  constexpr std::size_t kMagic = 0x00035F3F, kSize = 16;
  std::string file;
  Put(file, kMagic, 4);
  Put(file, kSize, 4);
  Put(file, 0xFFFFFFFF, 4);
  Put(file, kSize, 4);
  return file;
}

}  // namespace trovex::test
