#include "Image/Descriptor.h"

#include <cstring>

namespace trovex::image {
namespace {

constexpr std::size_t kEscapesAt = 88;

// Places of the fields in the two kinds of descriptors.
struct Fields {
  std::size_t label, space, block_size, little_table, big_table, root;
};
constexpr Fields kIsoFields = {40, 80, 128, 140, 148, 156};
constexpr Fields kHighSierraFields = {48, 88, 136, 148, 164, 180};

const Fields& FieldsOf(Format format) {
  return format == Format::kHighSierra ? kHighSierraFields : kIsoFields;
}

// The three sequences that announce names of two bytes a character.
bool IsJoliet(const char* escapes) {
  return escapes[0] == '%' && escapes[1] == '/' &&
         (escapes[2] == '@' || escapes[2] == 'C' || escapes[2] == 'E');
}

bool IsHighSierra(const char* head) {
  return std::memcmp(head + 9, "CDROM", 5) == 0;
}

std::uint8_t Byte(char byte) {
  return static_cast<std::uint8_t>(byte);
}

}  // namespace

std::optional<int> TypeOfDescriptor(const char* head) {
  if (std::memcmp(head + 1, "CD001", 5) == 0) return Byte(head[0]);
  if (IsHighSierra(head)) return Byte(head[8]);
  return std::nullopt;
}

std::uint16_t U16(const char* bytes) {
  return static_cast<std::uint16_t>(Byte(bytes[0]) | Byte(bytes[1]) << 8);
}

std::uint32_t U32(const char* bytes) {
  return U16(bytes) | std::uint32_t{U16(bytes + 2)} << 16;
}

std::uint32_t BigU32(const char* bytes) {
  const char turned[] = {bytes[3], bytes[2], bytes[1], bytes[0]};
  return U32(turned);
}

bool Descriptor::Read(const Track& track, std::uint32_t index) {
  if (track.Read(index, 0, bytes_.data(), bytes_.size()) != bytes_.size()) return false;
  const auto type = TypeOfDescriptor(bytes_.data());
  if (!type) return false;
  type_ = *type;
  format_ = Format::kIso;
  if (std::memcmp(bytes_.data() + 1, "CD001", 5) != 0) {
    format_ = Format::kHighSierra;
  } else if (type_ == kSupplementaryDescriptor && IsJoliet(bytes_.data() + kEscapesAt)) {
    format_ = Format::kJoliet;
  }
  return true;
}

std::uint32_t Descriptor::BlockSize() const {
  const std::uint32_t size = U16(&bytes_[FieldsOf(format_).block_size]);
  return size == 512 || size == 1024 ? size : kSectorSize;
}

std::uint32_t Descriptor::SpaceSize() const {
  return U32(&bytes_[FieldsOf(format_).space]);
}

std::string_view Descriptor::Label() const {
  return {&bytes_[FieldsOf(format_).label], 32};
}

const char* Descriptor::RootRecord() const {
  return &bytes_[FieldsOf(format_).root];
}

std::uint32_t Descriptor::LittlePathTable() const {
  return U32(&bytes_[FieldsOf(format_).little_table]);
}

std::uint32_t Descriptor::BigPathTable() const {
  return BigU32(&bytes_[FieldsOf(format_).big_table]);
}

}  // namespace trovex::image
