// Profile (INI) files as bytes in, bytes out: nothing here touches the disk.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "Platform/Text.h"

namespace trovex::records {

// What stands behind this in a profile file is not read, and a longer file is not written.
inline constexpr std::size_t kMaxProfile = 1 << 20;

// A file is in Windows-1252, or in UTF-16 with its mark (FF FE). Blanks, tabs and bytes 1A at the
// ends of a line, of a section's name and around a key and its value do not count.

// The value of the first matching key in the first matching section, without one pair of matching
// quotes. Nothing where section or key is missing; a line without "=" is no key.
std::optional<Text> FindProfileValue(std::string_view file, TextView section, TextView key);

// True if the file has that key, and nothing else but sections, comments and empty lines.
bool HoldsKeyAlone(std::string_view file, TextView section, TextView key);

// The answer of GetPrivateProfileString where the file holds `bytes`; a file without any stands for
// one that is missing.
std::uint32_t ProfileAnswer(const std::string& bytes, const Text& section, const Text& key,
                            const Text& fallback, Text& buffer, std::uint32_t size);

// `file` with the value in its place: that of the first matching key, else the end of the first
// matching section, before its trailing empty lines, else a new section at the end. All other
// lines keep their bytes; a file in UTF-16 stays one.
std::string WithProfileValue(std::string_view file, TextView section, TextView key, TextView value);

}  // namespace trovex::records
