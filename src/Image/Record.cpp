#include "Image/Record.h"

#include <cstring>

namespace trovex::image {
namespace {

constexpr std::size_t kAttributeLengthAt = 1;
constexpr std::size_t kBlockAt = 2;
constexpr std::size_t kSizeAt = 10;
constexpr std::size_t kDateAt = 18;
constexpr std::size_t kFlagsAt = 25;
constexpr std::size_t kUnitAt = 26;
constexpr std::size_t kSkipAt = 27;
constexpr std::size_t kNameLengthAt = 32;

// High Sierra knows no zone: the flags stand in its place.
constexpr std::size_t kHighSierraFlagsAt = 24;
constexpr std::size_t kHighSierraDate = 6;

std::uint8_t Byte(char byte) {
  return static_cast<std::uint8_t>(byte);
}

}  // namespace

Record ReadRecordHead(const char* head, Format format) {
  const bool old = format == Format::kHighSierra;
  Record record;
  // Attributes, where there are any, precede the data.
  record.block = U32(head + kBlockAt) + Byte(head[kAttributeLengthAt]);
  record.size = U32(head + kSizeAt);
  record.flags = Byte(head[old ? kHighSierraFlagsAt : kFlagsAt]);
  record.interleaved = head[kUnitAt] != 0 || head[kSkipAt] != 0;
  std::memcpy(record.date.data(), head + kDateAt, old ? kHighSierraDate : record.date.size());
  return record;
}

std::optional<Record> ReadRecord(std::string_view bytes, Format format) {
  const std::size_t length = LengthOfRecord(bytes);
  if (length <= kRecordHead || length > bytes.size()) return std::nullopt;
  const std::size_t name = Byte(bytes[kNameLengthAt]);
  if (name == 0 || name > length - kRecordHead) return std::nullopt;
  Record record = ReadRecordHead(bytes.data(), format);
  record.identifier = bytes.substr(kRecordHead, name);
  return record;
}

}  // namespace trovex::image
