// Numbers as the help file stores them, lowest byte first.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace trovex::aide {

// Bytes being written one number after the other.
class Bytes {
 public:
  Bytes& U8(uint32_t value) { return Put(value, 1); }
  Bytes& U16(uint32_t value) { return Put(value, 2); }
  Bytes& U32(uint32_t value) { return Put(value, 4); }
  Bytes& Raw(std::string_view bytes) {
    bytes_ += bytes;
    return *this;
  }
  // With a closing NUL.
  Bytes& Zero(std::string_view text) { return Raw(text).U8(0); }
  // In a field of `size` bytes, filled with NULs.
  Bytes& Field(std::string_view text, size_t size) {
    std::string field(text.substr(0, size));
    field.resize(size, '\0');
    return Raw(field);
  }

  // The short forms of paragraph data: a number of little size takes one byte (of a long: two), and
  // the lowest bit tells which form it is.
  Bytes& Short(int value) {
    return value >= -64 && value < 64 ? U8(Doubled(value + 64)) : U16(Doubled(value + 16384) + 1);
  }
  Bytes& UShort(int value) { return value < 128 ? U8(Doubled(value)) : U16(Doubled(value) + 1); }
  Bytes& Long(int value) {
    return value < 16384 ? U16(Doubled(value + 16384)) : U32(Doubled(value + 0x40000000) + 1);
  }

  const std::string& Get() const { return bytes_; }
  uint32_t Size() const { return static_cast<uint32_t>(bytes_.size()); }

 private:
  static uint32_t Doubled(int value) { return static_cast<uint32_t>(value) * 2; }
  Bytes& Put(uint32_t value, int count) {
    for (int i = 0; i < count; ++i) bytes_ += static_cast<char>(value >> (8 * i) & 0xFF);
    return *this;
  }

  std::string bytes_;
};

}  // namespace trovex::aide
