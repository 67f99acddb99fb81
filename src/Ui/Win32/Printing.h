// Prints a document through the system's dialog.
#pragma once

#include "Ui/Preview.h"
#include "Ui/Win32/PagePainter.h"

namespace trovex::win32 {

// Asks for printer, range and copies and prints, with a box that can stop it; tells the user where
// there is no printer, or where it refuses. A job that was cancelled, here or in the spooler, is no
// failure.
void PrintPages(HWND owner, const Preview& preview, Fonts& fonts, PrintMeasure& measure);

// A sheet as the printer tells of it, in its dots; the corner is that of what it can print on.
struct Sheet {
  int dots_across = 0, dots_down = 0;  // an inch
  int width = 0, height = 0;           // of the whole paper
  int left = 0, top = 0;               // the corner's place on the paper
};

// How a page lies on the sheet: as large as it can be, in the middle; places from the corner on.
struct SheetFit {
  double scale = 1;  // 1 is the page's own size
  int left = 0, top = 0;
};
SheetFit FitToSheet(Extent page, const Sheet& sheet);

}  // namespace trovex::win32
