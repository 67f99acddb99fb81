// What waits beneath a window that asks for the user's whole attention.
#pragma once

#include <vector>

#include "Platform/Win32/Windows.h"

namespace trovex::win32 {

// From its making on the window is owned by that of the user's before it, and the others take no
// input; both until End, or until its block ends.
class ModalLevel {
 public:
  // `levels` lists those that exist, the outermost first. `owner` may be null. `beneath` are the
  // windows on the screen.
  ModalLevel(std::vector<ModalLevel*>& levels, HWND window, HWND owner,
             const std::vector<HWND>& beneath);
  ~ModalLevel();
  ModalLevel(const ModalLevel&) = delete;
  ModalLevel& operator=(const ModalLevel&) = delete;

  HWND Window() const { return window_; }
  // Gives the others back to the user, and the window's place to its owner: to be called before the
  // window goes, or the system picks another one to be active, of another program perhaps.
  void End();

 private:
  std::vector<ModalLevel*>& levels_;
  HWND window_;
  HWND owner_;
  std::vector<HWND> disabled_;
  bool ended_ = false;
};

}  // namespace trovex::win32
