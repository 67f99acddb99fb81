// The colours in which forms and controls appear: the program's own, or the system's for those who
// need them to read.
#pragma once

#include <functional>

#include "Platform/Win32/Windows.h"

namespace trovex::win32 {

// A colour of the program's, with colours of the desktop resolved.
COLORREF NativeColour(unsigned colour);

// True while the user has asked the system for high contrast.
bool SystemHighContrast();

class Colours {
 public:
  // How the user's wish is asked for; Refresh asks anew.
  std::function<bool()> ask = SystemHighContrast;
  void Refresh();
  bool HighContrast() const { return high_contrast_; }

  // A form, and what has its colour; and a text on it. With high contrast the program's colour does
  // not count. A text without a colour of its own on a colour of the desktop has the desktop's.
  COLORREF Surface(unsigned colour) const;
  COLORREF SurfaceText(unsigned colour, unsigned surface) const;
  // A field for texts, likewise.
  COLORREF Field(unsigned colour) const;
  COLORREF FieldText(unsigned colour) const;
  // A shadow or frame of a single colour.
  COLORREF Filling(unsigned colour) const;

 private:
  bool high_contrast_ = SystemHighContrast();
};

}  // namespace trovex::win32
