// The registry: results are error codes, 0 is success.
#pragma once

#include <cstdint>
#include <string>

#include "Platform/Text.h"

namespace trovex {

// Roots of the registry, and keys that only the platform understands.
enum class RegistryRoot : std::uint32_t { kClassesRoot = 0x80000000, kLocalMachine = 0x80000002 };
enum class RegistryKey : std::int64_t { kNone = 0 };

// Types of registry values that the program reads.
inline constexpr std::uint32_t kRegistryString = 1;
inline constexpr std::uint32_t kRegistryBinary = 3;
inline constexpr std::uint32_t kRegistryNumber = 4;
inline constexpr std::uint32_t kRegistryStrings = 7;

// A value as it is stored.
struct RegistryValue {
  std::uint32_t type = 0;
  Text text;          // of a string or strings, terminators included
  std::string bytes;  // of a binary value or a number, lowest byte first
};

class RegistryPort {
 public:
  virtual ~RegistryPort() = default;

  // Keys that were opened or created are closed by
  // RegCloseKey, or at the end of the process.
  virtual long RegCreateKey(RegistryRoot root, const Text& name, RegistryKey& key) = 0;
  virtual long RegOpenKeyEx(RegistryRoot root, const Text& name, std::uint32_t access,
                            RegistryKey& key) = 0;
  // The value `name`, or the key's default value where it is empty.
  virtual long RegQueryValueEx(RegistryKey key, const Text& name, RegistryValue& value) = 0;
  virtual void RegCloseKey(RegistryKey key) = 0;
};

}  // namespace trovex
