// The desktop in light letters on black.
#pragma once

#include <vector>

#include "Platform/Win32/Windows.h"

namespace trovex::test {

// The system's colours are those of a black scheme while it lives; the windows have been told of
// the change both times.
class DarkScheme {
 public:
  DarkScheme();
  ~DarkScheme();
  DarkScheme(const DarkScheme&) = delete;
  DarkScheme& operator=(const DarkScheme&) = delete;

 private:
  std::vector<COLORREF> former_;
};

}  // namespace trovex::test
