// Functions of the system that not every Windows has.
#pragma once

#include "Platform/Win32/Windows.h"

namespace trovex {

// The function of that name in a library that the process has loaded; null where it has none.
template <typename Signature>
Signature* SystemCall(const wchar_t* library, const char* name) {
  const FARPROC found = GetProcAddress(GetModuleHandleW(library), name);
  return reinterpret_cast<Signature*>(reinterpret_cast<void*>(found));
}

}  // namespace trovex
