// What a form shows beneath its windows: shadows, frames and pictures.
#pragma once

#include "Ui/Form.h"
#include "Ui/Win32/NativeControl.h"

namespace trovex::win32 {

// Draws the visible controls of the form that have no window of their own, in the order of its
// table, in coordinates of the client area.
void PaintSurface(HDC dc, const Form& form, Scale scale, Shared& shared);

// Whether the rectangle covers a part of a picture that is to be seen.
bool CoversPicture(const Form& form, const RECT& at, Scale scale, const Shared& shared);

}  // namespace trovex::win32
