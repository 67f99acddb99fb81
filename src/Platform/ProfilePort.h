// Settings files, as the system reads and writes them.
#pragma once

#include <cstdint>

#include "Platform/Text.h"

namespace trovex {

class ProfilePort {
 public:
  virtual ~ProfilePort() = default;

  // Reads a value from an INI file in Windows-1252, or in UTF-16 with its mark FF FE. Lines end at
  // CR LF, CR or LF. Sections and keys without regard to case; the first matching section and in it
  // the first matching key; a line without "=" is no key; blanks, tabs and bytes 1A (the end mark
  // of MS-DOS) inside the section's brackets and around key and value dropped, one pair of matching
  // quotes around the value dropped; lines beginning with ';' are comments; a section's name ends
  // at the first ']' or, where there is none, at the end of the line; keys before any section are
  // unreachable. `buffer` receives at most size - 1 characters, its length is the result: an empty
  // value gives 0. A missing file, section or key gives `fallback` without its trailing blanks.
  virtual std::uint32_t GetPrivateProfileString(const Text& section, const Text& key,
                                                const Text& fallback, Text& buffer,
                                                std::uint32_t size, const Text& file) = 0;
  // Writes a value in the file's encoding, a new file's in Windows-1252, by the same rules of
  // place: replaces the first matching key, else adds it at the end of the section (before its
  // trailing empty lines), else adds the section at the end of the file; creates the file. All
  // other lines stay as they are. False on failure; the file is then as it was.
  virtual bool WritePrivateProfileString(const Text& section, const Text& key, const Text& value,
                                         const Text& file) = 0;
};

}  // namespace trovex
