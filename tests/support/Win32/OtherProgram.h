// Another program's window on the screen.
#pragma once

#include <thread>

#include "Platform/Win32/Windows.h"

namespace trovex::test {

// Stands on the screen with a queue of its own, as another program's would, while it lives; at its
// coming it does not take the foreground.
class OtherProgram {
 public:
  OtherProgram();
  ~OtherProgram();
  OtherProgram(const OtherProgram&) = delete;
  OtherProgram& operator=(const OtherProgram&) = delete;

  HWND Window() const { return window_; }

 private:
  void Live(HANDLE ready);

  HWND window_ = nullptr;
  DWORD thread_id_ = 0;
  std::thread thread_;
};

}  // namespace trovex::test
