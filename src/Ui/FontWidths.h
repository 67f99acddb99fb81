// How wide printed text is where no window system can tell: the three families of fonts that every
// printing system has, in the characters of Windows-1252. What the code page lacks measures as the
// question mark that stands in for it.
#pragma once

#include "Ui/Font.h"
#include "Ui/View.h"

namespace trovex {

enum class FontFamily { kTimes = 0, kHelvetica = 1, kCourier = 2 };

// The family that comes nearest to a font, by its name.
FontFamily FamilyOf(const Font& font);

// Twips.
double StandardWidth(TextView text, const Font& font);
FontMeasure StandardMeasure(const Font& font);

}  // namespace trovex
