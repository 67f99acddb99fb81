// Whether a file has an icon to show, and its picture.
#pragma once

#include <string>

#include "Platform/Records/ByteSource.h"

namespace trovex::records {

// True for an icon file, and for an NE or PE executable with a group of icons, whose images are all
// sound: each is where it is said to be, wholly inside the file, in a form that the system draws,
// with all its colours. A damaged icon must not reach the system's own readers, which trust it.
bool HoldsIcon(ByteSource& source);

// Of an icon for which that is true, the image that suits a square of so many pixels best, as it
// stands in the file: a bitmap, always with its mask, or a PNG picture. Empty for any other file.
std::string IconImage(ByteSource& source, int pixels);

}  // namespace trovex::records
