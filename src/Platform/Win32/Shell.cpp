// The help engine, icons and registry: the real calls.
#include <algorithm>

#include "Platform/Records/IconResource.h"
#include "Platform/Win32/FileReads.h"
#include "Platform/Win32/Names.h"
#include "Platform/Win32/Redirection.h"
#include "Platform/Win32/ShortName.h"
#include "Platform/Win32/SystemCalls.h"
#include "Platform/Win32/Win32Platform.h"
#include "Platform/Win32/Windows.h"

namespace trovex {
namespace {

HKEY Root(RegistryRoot root) {
  return root == RegistryRoot::kClassesRoot ? HKEY_CLASSES_ROOT : HKEY_LOCAL_MACHINE;
}

HKEY NativeKey(RegistryKey key) {
  return reinterpret_cast<HKEY>(static_cast<std::intptr_t>(key));
}

RegistryKey PortKey(HKEY key) {
  return static_cast<RegistryKey>(reinterpret_cast<std::intptr_t>(key));
}

bool HoldsSoundIcon(const Text& file) {
  try {
    const OwnedFile opened = OpenForReading(file);
    FileSource source(opened.get());
    return records::HoldsIcon(source);
  } catch (const RuntimeError&) {
    return false;
  }
}

bool IsText(DWORD type) {
  return type == REG_SZ || type == REG_EXPAND_SZ || type == REG_MULTI_SZ;
}

}  // namespace

// Windows gave the engine up with Vista.
bool Win32Platform::HasHelpEngine() {
  if (SystemCall<const char*()>(L"ntdll", "wine_get_version") != nullptr) return true;
  constexpr DWORD kVista = 6;
  OsVersionInfo info;
  info.dwOSVersionInfoSize = kOsVersionInfoSize;
  return GetVersionEx(info) && info.dwMajorVersion < kVista;
}

int Win32Platform::ExtractIconEx(const Text& file, int index, IconOwner owner) {
  const Unredirected unredirected;
  if (owner == IconOwner::kDisc && !HoldsSoundIcon(file)) return 0;
  HICON large = nullptr;
  const ShortName name(file);
  ExtractIconExW(Wide(name.Get()), index, &large, nullptr, 1);
  if (large == nullptr) return 0;
  DestroyIcon(large);
  return 1;
}

long Win32Platform::RegCreateKey(RegistryRoot root, const Text& name, RegistryKey& key) {
  HKEY opened = nullptr;
  const LSTATUS result = RegCreateKeyW(Root(root), Wide(name), &opened);
  key = PortKey(opened);
  return result;
}

long Win32Platform::RegOpenKeyEx(RegistryRoot root, const Text& name, std::uint32_t access,
                                 RegistryKey& key) {
  HKEY opened = nullptr;
  LSTATUS result = RegOpenKeyExW(Root(root), Wide(name), 0, access, &opened);
  if (result == ERROR_ACCESS_DENIED) {
    result = RegOpenKeyExW(Root(root), Wide(name), 0, KEY_READ, &opened);
  }
  key = PortKey(opened);
  return result;
}

long Win32Platform::RegQueryValueEx(RegistryKey key, const Text& name, RegistryValue& value) {
  DWORD type = 0, size = 0;
  LSTATUS result = RegQueryValueExW(NativeKey(key), Wide(name), nullptr, &type, nullptr, &size);
  if (result != ERROR_SUCCESS) return result;
  std::string bytes(size, '\0');
  result = RegQueryValueExW(NativeKey(key), Wide(name), nullptr, &type,
                            reinterpret_cast<BYTE*>(bytes.data()), &size);
  if (result != ERROR_SUCCESS) return result;
  bytes.resize(size);
  value = {type, {}, {}};
  if (!IsText(type)) {
    value.bytes = std::move(bytes);
    return result;
  }
  value.text.resize(size / sizeof(char16_t));
  std::copy_n(bytes.data(), value.text.size() * sizeof(char16_t),
              reinterpret_cast<char*>(value.text.data()));
  if (!value.text.ends_with(u'\0')) value.text += u'\0';
  return result;
}

void Win32Platform::RegCloseKey(RegistryKey key) {
  ::RegCloseKey(NativeKey(key));
}

}  // namespace trovex
