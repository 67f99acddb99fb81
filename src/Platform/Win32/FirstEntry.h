// The first entry of a directory, as fast as the system can give it. For sources that see
// <windows.h>.
#pragma once

#include "Platform/Win32/Windows.h"

namespace trovex {

using FindFirstCall = decltype(&FindFirstFileExW);

// The search that `pattern` begins, and its first entry in `entry`; the system's invalid handle
// where there is none, and GetLastError says why. Entries come without their 8.3 aliases and in
// large portions where the system can do that, from Windows 7 on, otherwise in the ordinary way.
// `find` is the system's function, or what a test puts in its place.
HANDLE FirstEntry(const wchar_t* pattern, WIN32_FIND_DATAW& entry,
                  FindFirstCall find = &FindFirstFileExW);

// Whether that search has a directory to look through, be there entries in it or not.
bool CanBeListed(const wchar_t* pattern, FindFirstCall find = &FindFirstFileExW);

}  // namespace trovex
