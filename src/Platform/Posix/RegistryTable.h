// The registry where the system has none: a table that is empty unless somebody fills it.
#pragma once

#include <map>
#include <vector>

#include "Platform/Platform.h"

namespace trovex::posix {

class RegistryTable {
 public:
  // The default value of a key, or one of its named values, as a string; makes the key.
  void SetString(RegistryRoot root, const Text& key, const Text& value, const Text& name = {});
  void Set(RegistryRoot root, const Text& key, const Text& name, RegistryValue value);

  // The operations of the port.
  long Create(RegistryRoot root, const Text& name, RegistryKey& key);
  long Open(RegistryRoot root, const Text& name, RegistryKey& key);
  long Query(RegistryKey key, const Text& name, RegistryValue& value) const;

 private:
  using Values = std::map<Text, RegistryValue>;  // by upper-cased name
  using Path = std::pair<RegistryRoot, Text>;    // upper-cased

  static Path PathOf(RegistryRoot root, const Text& key) { return {root, ToUpper(key)}; }
  RegistryKey Hand(const Path& path);

  std::map<Path, Values> keys_;
  std::vector<Path> opened_;  // a key is its place here, counted from 1
};

}  // namespace trovex::posix
