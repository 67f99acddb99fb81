#include "support/HostSystem.h"

#include "Platform/Win32/Windows.h"

namespace trovex::test {

HostSystem CurrentHostSystem() {
  const HMODULE system = GetModuleHandleW(L"ntdll.dll");
  const bool wine = GetProcAddress(system, "wine_get_version") != nullptr;
  return wine ? HostSystem::kWine : HostSystem::kWindows;
}

}  // namespace trovex::test
