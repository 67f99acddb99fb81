// Whether a file has an icon to show.
#pragma once

#include "Platform/Records/ByteSource.h"

namespace trovex::records {

// True for an icon file, and for an NE or PE executable with a group of icons, whose images are all
// sound: each is where it is said to be, wholly inside the file, in a form that the system draws,
// with all its colours. A damaged icon must not reach the system's own readers, which trust it.
bool HoldsIcon(ByteSource& source);

}  // namespace trovex::records
