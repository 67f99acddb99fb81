// Volume descriptors of ISO 9660, Joliet and High Sierra: where their fields stand.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

#include "Image/Track.h"

namespace trovex::image {

// The sector of the first descriptor, counted from the beginning of its session.
inline constexpr std::uint32_t kFirstDescriptor = 16;
// No more follow each other.
inline constexpr std::uint32_t kMostDescriptors = 64;

inline constexpr int kPrimaryDescriptor = 1;
inline constexpr int kSupplementaryDescriptor = 2;
inline constexpr int kLastDescriptor = 255;

// Bytes that TypeOfDescriptor looks at.
inline constexpr std::size_t kDescriptorHead = 16;
// The type of the descriptor that begins with these bytes; nothing where it is none.
std::optional<int> TypeOfDescriptor(const char* head);

// The fields' numbers, the little end first.
std::uint16_t U16(const char* bytes);
std::uint32_t U32(const char* bytes);
std::uint32_t BigU32(const char* bytes);

enum class Format { kIso, kJoliet, kHighSierra };

// One descriptor's sector.
class Descriptor {
 public:
  // Reads sector `index`; false where it is no descriptor.
  bool Read(const Track& track, std::uint32_t index);

  int Type() const { return type_; }
  Format GetFormat() const { return format_; }
  // 512, 1024 or 2048; anything else counts as 2048.
  std::uint32_t BlockSize() const;
  std::uint32_t SpaceSize() const;  // of the volume, in blocks
  std::string_view Label() const;   // 32 bytes
  const char* RootRecord() const;   // 34 bytes; its length is not to be trusted
  // Blocks where the table of paths begins, once for either order of bytes.
  std::uint32_t LittlePathTable() const;
  std::uint32_t BigPathTable() const;

 private:
  std::array<char, kSectorSize> bytes_ = {};
  int type_ = 0;
  Format format_ = Format::kIso;
};

}  // namespace trovex::image
