#include "Ui/Win32/Colours.h"

namespace trovex::win32 {
namespace {

constexpr unsigned kDesktopColour = 0x80000000;
constexpr unsigned kNoColour = 0;  // a text's, where it was given none

bool IsDesktopColour(unsigned colour) {
  return (colour & kDesktopColour) != 0;
}

}  // namespace

COLORREF NativeColour(unsigned colour) {
  return IsDesktopColour(colour) ? GetSysColor(static_cast<int>(colour & 0xFF)) : colour;
}

bool SystemHighContrast() {
  HIGHCONTRASTW contrast = {};
  contrast.cbSize = sizeof contrast;
  return SystemParametersInfoW(SPI_GETHIGHCONTRAST, sizeof contrast, &contrast, 0) &&
         (contrast.dwFlags & HCF_HIGHCONTRASTON) != 0;
}

void Colours::Refresh() {
  high_contrast_ = ask();
}

COLORREF Colours::Surface(unsigned colour) const {
  return high_contrast_ ? GetSysColor(COLOR_BTNFACE) : NativeColour(colour);
}

COLORREF Colours::SurfaceText(unsigned colour, unsigned surface) const {
  const bool desktops = colour == kNoColour && IsDesktopColour(surface);
  return high_contrast_ || desktops ? GetSysColor(COLOR_BTNTEXT) : NativeColour(colour);
}

COLORREF Colours::Field(unsigned colour) const {
  return high_contrast_ ? GetSysColor(COLOR_WINDOW) : NativeColour(colour);
}

COLORREF Colours::FieldText(unsigned colour) const {
  return high_contrast_ ? GetSysColor(COLOR_WINDOWTEXT) : NativeColour(colour);
}

COLORREF Colours::Filling(unsigned colour) const {
  return high_contrast_ ? GetSysColor(COLOR_BTNSHADOW) : NativeColour(colour);
}

}  // namespace trovex::win32
