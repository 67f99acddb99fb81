// What a user does before a window that has a loop of its own.
#pragma once

#include <deque>
#include <functional>

#include "Platform/Win32/Windows.h"

namespace trovex::test {

// Takes its steps one by one, each when the thread has nothing else to do. At most one exists;
// steps that were not taken by its end are left out, which Left tells.
class Steps {
 public:
  explicit Steps(std::deque<std::function<void()>> steps);
  ~Steps();
  Steps(const Steps&) = delete;
  Steps& operator=(const Steps&) = delete;

  std::size_t Left() const { return steps_.size(); }

 private:
  static void CALLBACK OnTimer(HWND window, UINT message, UINT_PTR id, DWORD time);

  static Steps* current_;
  std::deque<std::function<void()>> steps_;
  UINT_PTR timer_;
};

}  // namespace trovex::test
