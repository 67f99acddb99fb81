// What screen readers are told.
#pragma once

#include "Platform/Text.h"
#include "Platform/Win32/Windows.h"

namespace trovex::win32 {

// Gives a window a name of its own; an empty name leaves it the usual one. A system without the
// service leaves it too.
void SetAccessibleName(HWND window, const Text& name);

}  // namespace trovex::win32
