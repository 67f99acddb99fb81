// What stands on the screen while a document is printed: the page in hand, and a button that stops.
#pragma once

#include "Ui/Win32/Fonts.h"

namespace trovex::win32 {

// The owner takes no input meanwhile. One at a time.
class PrintingBox {
 public:
  struct Texts {
    Text caption, cancel;
  };
  PrintingBox(HWND owner, const Texts& texts, Fonts& fonts);
  ~PrintingBox();
  PrintingBox(const PrintingBox&) = delete;
  PrintingBox& operator=(const PrintingBox&) = delete;

  void Show(const Text& progress);
  // Handles what the user does, and no more; false once it was to stop. The end of the program
  // stops as well.
  bool GoOn();

  // For the system, which asks now and then whether to go on.
  static BOOL CALLBACK Ask(HDC dc, int error);

 private:
  static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM w, LPARAM l);
  void Create(const Texts& texts, Fonts& fonts);

  HWND owner_;
  HWND window_ = nullptr;
  HWND label_ = nullptr;
  bool owner_enabled_ = false;
  bool stopped_ = false;
};

}  // namespace trovex::win32
