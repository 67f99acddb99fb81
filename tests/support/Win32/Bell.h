// The end of a test's message loop.
#pragma once

#include "Platform/Win32/Windows.h"

namespace trovex::test {

// Rung, it ends the thread's message loop behind all messages that are waiting then. A box that is
// open is left in peace: its own loop would take the end for itself.
class Bell {
 public:
  Bell();
  ~Bell();
  Bell(const Bell&) = delete;
  Bell& operator=(const Bell&) = delete;

  void Ring();

 private:
  static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM w, LPARAM l);

  HWND window_;
};

}  // namespace trovex::test
