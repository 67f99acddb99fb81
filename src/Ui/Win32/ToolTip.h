// The small text that comes up where the mouse rests.
#pragma once

#include "Platform/Text.h"
#include "Platform/Win32/Windows.h"

namespace trovex::win32 {

// Gives a child window its tool tip, which goes with the window's parent; an empty text gives none.
void ShowToolTip(HWND window, const Text& text);

}  // namespace trovex::win32
