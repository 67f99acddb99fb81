// Whether what a window shows can be read.
#pragma once

#include "Platform/Win32/Windows.h"

namespace trovex::test {

// The ratio, from 1 (the same colour) to 21 (black and white), between the colour that fills most
// of the window's client area on the screen and the one that stands out from it most; 1 for a
// window without any. `background` is the former's luminance, from 0 (black) to 1.
double Contrast(HWND window, double* background = nullptr);

}  // namespace trovex::test
