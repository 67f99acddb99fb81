#include "Platform/Posix/RegistryTable.h"

#include <algorithm>

namespace trovex::posix {
namespace {

// Error codes of the registry.
constexpr long kSuccess = 0;
constexpr long kNotFound = 2;
constexpr long kInvalidHandle = 6;
constexpr long kBadPath = 161;

}  // namespace

void RegistryTable::SetString(RegistryRoot root, const Text& key, const Text& value,
                              const Text& name) {
  Set(root, key, name, {kRegistryString, value + u'\0', {}});
}

void RegistryTable::Set(RegistryRoot root, const Text& key, const Text& name, RegistryValue value) {
  keys_[PathOf(root, key)][ToUpper(name)] = std::move(value);
}

RegistryKey RegistryTable::Hand(const Path& path) {
  // The same key has the same handle, so that keys that stay open cost nothing.
  auto opened = std::find(opened_.begin(), opened_.end(), path);
  if (opened == opened_.end()) opened = opened_.insert(opened_.end(), path);
  return static_cast<RegistryKey>(opened - opened_.begin() + 1);
}

long RegistryTable::Create(RegistryRoot root, const Text& name, RegistryKey& key) {
  if (name.starts_with(u'\\')) return kBadPath;
  const Path path = PathOf(root, name);
  keys_[path];
  key = Hand(path);
  return kSuccess;
}

long RegistryTable::Open(RegistryRoot root, const Text& name, RegistryKey& key) {
  if (name.starts_with(u'\\')) return kBadPath;
  const Path path = PathOf(root, name);
  if (!keys_.contains(path)) return kNotFound;
  key = Hand(path);
  return kSuccess;
}

long RegistryTable::Query(RegistryKey key, const Text& name, RegistryValue& value) const {
  const auto place = static_cast<std::size_t>(key) - 1;
  if (place >= opened_.size()) return kInvalidHandle;
  const Values& values = keys_.at(opened_[place]);
  const auto found = values.find(ToUpper(name));
  if (found == values.end()) return kNotFound;
  value = found->second;
  return kSuccess;
}

}  // namespace trovex::posix
