// Answers the system's boxes and dialogs in the order of their coming.
#pragma once

#include <deque>
#include <vector>

#include "Platform/Text.h"
#include "Platform/Win32/Windows.h"

namespace trovex::test {

// While it lives, each box or dialog that this thread opens is noted and its next button pressed;
// one that no button was given for is cancelled, and counted. At most one exists.
class BoxAnswerer {
 public:
  struct Seen {
    Text title;
    Text text;  // of the box's message, empty for a dialog that has none
    HWND owner;
  };

  BoxAnswerer();
  ~BoxAnswerer();
  BoxAnswerer(const BoxAnswerer&) = delete;
  BoxAnswerer& operator=(const BoxAnswerer&) = delete;

  // The button of the next box that has none yet: IDYES, IDNO, IDOK or IDCANCEL.
  void Press(int button) { buttons_.push_back(button); }
  const std::vector<Seen>& Boxes() const { return boxes_; }
  // Those that came up without a button.
  const std::vector<Seen>& Unexpected() const { return unexpected_; }

 private:
  static LRESULT CALLBACK Hook(int code, WPARAM w, LPARAM l);
  void Answer(HWND box);

  static BoxAnswerer* current_;
  std::deque<int> buttons_;
  std::vector<Seen> boxes_, unexpected_;
  std::vector<HWND> answered_;
  HHOOK hook_;
};

}  // namespace trovex::test
