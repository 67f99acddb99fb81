// The window classes of the program's own windows.
#pragma once

#include "Platform/Win32/Windows.h"

namespace trovex::win32 {

// Registers a class under that name unless it is there; its windows bear the program's icon and
// the arrow. The background may be null: the procedure paints it then.
void RegisterWindowClass(const wchar_t* name, WNDPROC procedure, HBRUSH background);

}  // namespace trovex::win32
