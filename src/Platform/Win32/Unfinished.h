// Files that are being written, for the end of the process from outside to take away: half a file
// is not to be left under a whole one's name. A header without <windows.h>: a handle is a plain
// pointer there.
#pragma once

#include "Platform/Text.h"

namespace trovex {

// Puts an open file on the list, under the name that the system opens; and takes it off, before it
// is closed. One that is not listed may be struck all the same.
void ListUnfinished(void* file, const Text& verbatim);
void StrikeUnfinished(void* file);

// Closes and removes what is on the list. Nothing is listed or struck any more: the process is
// about to end, and its own thread waits there for it.
void RemoveUnfinished();

// From now on Ctrl+C, Ctrl+Break, a closed console and the session's end do that before they end
// the process as they always did.
void RemoveUnfinishedAtControlEvents();

}  // namespace trovex
