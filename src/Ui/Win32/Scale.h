// Twips and pixels at a monitor's resolution.
#pragma once

#include <cmath>

#include "Platform/Win32/Windows.h"
#include "Ui/Control.h"

namespace trovex::win32 {

struct Scale {
  int dpi = 96;

  int Pixels(double twips) const { return static_cast<int>(std::lround(twips * dpi / 1440)); }
  // The pixel that the point lies in: two of them that are a pixel apart never fall together, as
  // they may when they are rounded.
  int PixelAt(double twips) const { return static_cast<int>(std::floor(twips * dpi / 1440)); }
  double Twips(int pixels) const { return pixels * 1440.0 / dpi; }
  int Points(double points) const { return static_cast<int>(std::lround(points * dpi / 72)); }
  // Edges are rounded, not measures: what touches in twips touches in pixels.
  RECT Rect(const Place& place) const {
    return {Pixels(place.left), Pixels(place.top), Pixels(place.left + place.width),
            Pixels(place.top + place.height)};
  }
};

// Resolution of the monitor that shows the window; of the system where the system does not tell.
int DpiOf(HWND window);
int SystemDpi();

// A client area with the frame that a window of these styles has at that resolution.
RECT WithFrame(RECT client, DWORD style, DWORD extended_style, int dpi);

}  // namespace trovex::win32
