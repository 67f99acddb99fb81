#include "Platform/Encoding.h"

#include <algorithm>
#include <array>
#include <cstdint>

namespace trovex {
namespace {

// Windows-1252 bytes 80 to 9F; the undefined ones stand as C1 controls.
constexpr std::array<char16_t, 32> kHighBytes = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

char ToCp1252Byte(char16_t unit) {
  if (unit < 0x80 || (unit >= 0xA0 && unit <= 0xFF)) return static_cast<char>(unit);
  for (std::size_t i = 0; i < kHighBytes.size(); ++i) {
    if (kHighBytes[i] == unit) return static_cast<char>(0x80 + i);
  }
  return '?';
}

bool IsHighSurrogate(char16_t unit) {
  return unit >= 0xD800 && unit <= 0xDBFF;
}
bool IsLowSurrogate(char16_t unit) {
  return unit >= 0xDC00 && unit <= 0xDFFF;
}

// Length of the valid sequence at the head of `bytes` and its code point; 0 if there is none.
int DecodeOne(std::string_view bytes, char32_t& point) {
  const auto byte = [&](std::size_t i) { return static_cast<std::uint8_t>(bytes[i]); };
  const std::uint8_t lead = byte(0);
  if (lead < 0x80) {
    point = lead;
    return 1;
  }
  const int length = lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : 2;
  if (lead < 0xC2 || lead > 0xF4 || bytes.size() < static_cast<std::size_t>(length)) return 0;
  point = lead & (0x7F >> length);
  for (int i = 1; i < length; ++i) {
    if ((byte(i) & 0xC0) != 0x80) return 0;
    point = point << 6 | (byte(i) & 0x3F);
  }
  constexpr char32_t kLeast[] = {0, 0, 0x80, 0x800, 0x10000};
  const bool surrogate = point >= 0xD800 && point <= 0xDFFF;
  return point < kLeast[length] || point > 0x10FFFF || surrogate ? 0 : length;
}

void Append(std::string& bytes, char32_t point) {
  if (point < 0x80) {
    bytes += static_cast<char>(point);
  } else if (point < 0x800) {
    bytes += static_cast<char>(0xC0 | point >> 6);
    bytes += static_cast<char>(0x80 | (point & 0x3F));
  } else if (point < 0x10000) {
    bytes += static_cast<char>(0xE0 | point >> 12);
    bytes += static_cast<char>(0x80 | (point >> 6 & 0x3F));
    bytes += static_cast<char>(0x80 | (point & 0x3F));
  } else {
    bytes += static_cast<char>(0xF0 | point >> 18);
    bytes += static_cast<char>(0x80 | (point >> 12 & 0x3F));
    bytes += static_cast<char>(0x80 | (point >> 6 & 0x3F));
    bytes += static_cast<char>(0x80 | (point & 0x3F));
  }
}

enum class LoneSurrogate { kByte, kReplacement };

std::string Encode(TextView text, LoneSurrogate lone) {
  const auto plain =
      std::find_if(text.begin(), text.end(), [](char16_t unit) { return unit >= 0x80; });
  std::string bytes;
  bytes.reserve(text.size());
  bytes.assign(text.begin(), plain);
  for (std::size_t i = bytes.size(); i < text.size(); ++i) {
    const char16_t unit = text[i];
    if (IsHighSurrogate(unit) && i + 1 < text.size() && IsLowSurrogate(text[i + 1])) {
      Append(bytes, 0x10000 + ((unit - 0xD800u) << 10) + (text[++i] - 0xDC00u));
    } else if (!IsHighSurrogate(unit) && !IsLowSurrogate(unit)) {
      Append(bytes, unit);
    } else if (lone == LoneSurrogate::kByte && unit >= 0xDC80 && unit <= 0xDCFF) {
      bytes += static_cast<char>(unit - 0xDC00);
    } else {
      Append(bytes, 0xFFFD);
    }
  }
  return bytes;
}

}  // namespace

Text FromCp1252(std::string_view bytes) {
  Text text;
  text.reserve(bytes.size());
  for (char c : bytes) {
    const auto byte = static_cast<std::uint8_t>(c);
    text += byte >= 0x80 && byte <= 0x9F ? kHighBytes[byte - 0x80] : static_cast<char16_t>(byte);
  }
  return text;
}

std::string ToCp1252(TextView text) {
  std::string bytes;
  bytes.reserve(text.size());
  for (std::size_t i = 0; i < text.size(); ++i) {
    // A character beyond the plane is two units but one '?'.
    const bool pair =
        IsHighSurrogate(text[i]) && i + 1 < text.size() && IsLowSurrogate(text[i + 1]);
    bytes += ToCp1252Byte(text[i]);
    if (pair) ++i;
  }
  return bytes;
}

Text FromUtf8(std::string_view bytes) {
  Text text;
  text.reserve(bytes.size());
  while (!bytes.empty()) {
    char32_t point = 0;
    const int length = DecodeOne(bytes, point);
    if (length == 0) {
      text += static_cast<char16_t>(0xDC00 + static_cast<std::uint8_t>(bytes[0]));
    } else if (point < 0x10000) {
      text += static_cast<char16_t>(point);
    } else {
      text += static_cast<char16_t>(0xD800 + ((point - 0x10000) >> 10));
      text += static_cast<char16_t>(0xDC00 + ((point - 0x10000) & 0x3FF));
    }
    bytes.remove_prefix(length == 0 ? 1 : length);
  }
  return text;
}

std::string ToUtf8(TextView text) {
  return Encode(text, LoneSurrogate::kByte);
}
std::string ToStrictUtf8(TextView text) {
  return Encode(text, LoneSurrogate::kReplacement);
}

}  // namespace trovex
