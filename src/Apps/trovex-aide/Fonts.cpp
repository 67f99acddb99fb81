#include "Apps/trovex-aide/Fonts.h"

#include <iterator>

#include "Apps/trovex-aide/Bytes.h"

namespace trovex::aide {
namespace {

constexpr uint32_t kHeadSize = 8;
constexpr uint32_t kFaceSize = 20;
constexpr uint32_t kBoldFlag = 1;
constexpr uint32_t kModern = 1;
constexpr uint32_t kSwiss = 3;

constexpr const char* kFaces[] = {"Arial", "Courier New"};

struct Colour {
  uint32_t red, green, blue;
};
constexpr Colour kWindowText = {1, 1, 0};  // that of the reader's system
constexpr Colour kNavy = {0, 0, 128};

struct Description {
  uint32_t flags;
  uint32_t half_points;
  uint32_t family;
  uint32_t face;
  Colour colour;
};

// In the order of HelpFont.
constexpr Description kDescriptions[] = {
    {0, 20, kSwiss, 0, kWindowText},   {kBoldFlag, 20, kSwiss, 0, kWindowText},
    {0, 20, kModern, 1, kWindowText},  {kBoldFlag, 32, kSwiss, 0, kNavy},
    {kBoldFlag, 24, kSwiss, 0, kNavy},
};

}  // namespace

std::string FontFile() {
  const uint32_t faces = std::size(kFaces);
  Bytes file;
  file.U16(faces).U16(std::size(kDescriptions)).U16(kHeadSize).U16(kHeadSize + faces * kFaceSize);
  for (const char* face : kFaces) file.Field(face, kFaceSize);
  for (const Description& font : kDescriptions) {
    file.U8(font.flags).U8(font.half_points).U8(font.family).U16(font.face);
    file.U8(font.colour.red).U8(font.colour.green).U8(font.colour.blue);
    file.U8(0).U8(0).U8(0);  // a background that engines pass over
  }
  return file.Get();
}

}  // namespace trovex::aide
