#include "Platform/Win32/FirstEntry.h"

#include "Platform/Win32/Handles.h"

namespace trovex {

HANDLE FirstEntry(const wchar_t* pattern, WIN32_FIND_DATAW& entry, FindFirstCall find) {
  const HANDLE found = find(pattern, FindExInfoBasic, &entry, FindExSearchNameMatch, nullptr,
                            FIND_FIRST_EX_LARGE_FETCH);
  // Systems before Windows 7 know neither the level nor the flag.
  if (found != INVALID_HANDLE_VALUE || GetLastError() != ERROR_INVALID_PARAMETER) return found;
  return find(pattern, FindExInfoStandard, &entry, FindExSearchNameMatch, nullptr, 0);
}

// Only of an empty directory is it said that there is no file; a missing one is no path.
bool CanBeListed(const wchar_t* pattern, FindFirstCall find) {
  WIN32_FIND_DATAW entry;
  const OwnedFind found = OwnFind(FirstEntry(pattern, entry, find));
  return found || GetLastError() == ERROR_FILE_NOT_FOUND || GetLastError() == ERROR_NO_MORE_FILES;
}

}  // namespace trovex
