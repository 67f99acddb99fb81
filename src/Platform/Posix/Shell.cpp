// Shell and registry: nothing is ever started here.
#include "Platform/Posix/PosixPlatform.h"

namespace trovex {
namespace {

constexpr int kNoAssociation = 31;

}  // namespace

int PosixPlatform::ShellExecute(const Text&, const Text&, const Text&, const Text&, int) {
  return kNoAssociation;
}

int PosixPlatform::FindExecutable(const Text&, const Text&, Text& buffer) {
  if (!buffer.empty()) buffer[0] = u'\0';
  return kNoAssociation;
}

void PosixPlatform::StartProgram(const Text&, int) {
  throw RuntimeError(ErrorNumber::kPermissionDenied);
}

bool PosixPlatform::HasHelpEngine() {
  return true;
}

long PosixPlatform::RegCreateKey(RegistryRoot root, const Text& name, RegistryKey& key) {
  return registry_.Create(root, name, key);
}

long PosixPlatform::RegOpenKeyEx(RegistryRoot root, const Text& name, std::uint32_t,
                                 RegistryKey& key) {
  return registry_.Open(root, name, key);
}

long PosixPlatform::RegQueryValueEx(RegistryKey key, const Text& name, RegistryValue& value) {
  return registry_.Query(key, name, value);
}

void PosixPlatform::RegCloseKey(RegistryKey) {}

}  // namespace trovex
