#include "Platform/Win32/FirstEntry.h"

namespace trovex {

HANDLE FirstEntry(const wchar_t* pattern, WIN32_FIND_DATAW& entry, FindFirstCall find) {
  const HANDLE found = find(pattern, FindExInfoBasic, &entry, FindExSearchNameMatch, nullptr,
                            FIND_FIRST_EX_LARGE_FETCH);
  // Systems before Windows 7 know neither the level nor the flag.
  if (found != INVALID_HANDLE_VALUE || GetLastError() != ERROR_INVALID_PARAMETER) return found;
  return find(pattern, FindExInfoStandard, &entry, FindExSearchNameMatch, nullptr, 0);
}

}  // namespace trovex
