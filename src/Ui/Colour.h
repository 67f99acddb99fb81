// Colours as the system writes them: red in the low byte.
#pragma once

namespace trovex {

constexpr unsigned Rgb(unsigned red, unsigned green, unsigned blue) {
  return red | green << 8 | blue << 16;
}

// Colours of the desktop.
inline constexpr unsigned kButtonFaceColour = 0x8000000F;
inline constexpr unsigned kButtonShadowColour = 0x80000010;
inline constexpr unsigned kHighlightColour = 0x80000014;

}  // namespace trovex
