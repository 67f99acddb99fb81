// Answers the system's boxes and dialogs in the order of their coming.
#pragma once

#include <vector>

#include "Platform/Text.h"
#include "Platform/Win32/Windows.h"

namespace trovex::test {

// While it lives, each box or dialog that this thread opens is noted and its next button pressed;
// one that no button was given for is cancelled, and counts as a failure of the test. At most one
// exists.
class BoxAnswerer {
 public:
  struct Seen {
    Text title;
    Text text;  // of the box's message, empty for a dialog that has none
    HWND owner;
  };

  // Identifiers of the buttons: IDYES, IDNO, IDOK, IDCANCEL.
  explicit BoxAnswerer(std::vector<int> buttons);
  ~BoxAnswerer();
  BoxAnswerer(const BoxAnswerer&) = delete;
  BoxAnswerer& operator=(const BoxAnswerer&) = delete;

  const std::vector<Seen>& Boxes() const { return boxes_; }

 private:
  static LRESULT CALLBACK Hook(int code, WPARAM w, LPARAM l);
  void Answer(HWND box);

  static BoxAnswerer* current_;
  std::vector<int> buttons_;
  std::vector<Seen> boxes_;
  std::vector<HWND> answered_;
  HHOOK hook_;
};

}  // namespace trovex::test
