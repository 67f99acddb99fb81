// A directory search by the program's rules of patterns over the system's.
#pragma once

#include "Platform/Platform.h"
#include "Platform/Win32/Handles.h"

namespace trovex {

class Search {
 public:
  // `pattern` as Platform::FindFirstFile takes it. Nothing is found yet.
  explicit Search(const Text& pattern);

  // The next entry; false, and `data` untouched, at the end or where there is nothing to search.
  // The system's last error then says why, and nothing is held any more. Raises kDeviceIo where the
  // search breaks off.
  bool Next(FindData& data);

 private:
  bool Advance(FindData& data);
  bool Accepts(const void* entry) const;

  Text level_;     // the last level of the pattern
  Text question_;  // what the system is asked, empty at the end
  bool root_ = false;
  OwnedFind handle_;
};

}  // namespace trovex
