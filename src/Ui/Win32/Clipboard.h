// What the user copies.
#pragma once

#include "Platform/Text.h"
#include "Platform/Win32/Windows.h"

namespace trovex::win32 {

// Puts the text on the clipboard in the window's name; where another program holds it, it stays as
// it is.
void CopyToClipboard(HWND window, const Text& text);

}  // namespace trovex::win32
