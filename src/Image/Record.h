// Directory records of ISO 9660, Joliet and High Sierra.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

#include "Image/Descriptor.h"

namespace trovex::image {

// Bits of a record's flags.
inline constexpr std::uint8_t kRecordHidden = 1;
inline constexpr std::uint8_t kRecordDirectory = 2;
inline constexpr std::uint8_t kRecordAssociated = 4;   // the other half of a Macintosh file
inline constexpr std::uint8_t kRecordContinues = 128;  // more of the file in the next record

// Date and zone as they are recorded.
using RecordDate = std::array<std::int8_t, 7>;

struct Record {
  std::uint32_t block = 0;  // where the data begins
  std::uint32_t size = 0;   // of the data, in bytes
  RecordDate date = {};
  std::uint8_t flags = 0;
  bool interleaved = false;     // the data do not lie in one piece
  std::string_view identifier;  // within the bytes that were read
};

// Names by which a directory lists itself and the one above.
inline constexpr std::string_view kSelf("\0", 1);
inline constexpr std::string_view kParent("\1", 1);

// The record at the beginning of `bytes`, which end with its sector; nothing where what its first
// byte says reaches beyond, or leaves its name no room.
std::optional<Record> ReadRecord(std::string_view bytes, Format format);

// Bytes to step over to the next record; 0 where the sector holds no more.
inline std::size_t LengthOfRecord(std::string_view bytes) {
  return bytes.empty() ? 0 : static_cast<unsigned char>(bytes.front());
}

// The fields of a record whose length does not matter, as that of the root in a descriptor.
inline constexpr std::size_t kRecordHead = 33;
Record ReadRecordHead(const char* head, Format format);

}  // namespace trovex::image
