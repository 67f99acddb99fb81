// Prints a document through the system's dialog.
#pragma once

#include "Ui/Preview.h"
#include "Ui/Win32/PagePainter.h"

namespace trovex::win32 {

// Asks for printer, range and copies and prints; tells the user where there is no printer, or where
// it refuses.
void PrintPages(HWND owner, const Preview& preview, Fonts& fonts, PrintMeasure& measure);

}  // namespace trovex::win32
