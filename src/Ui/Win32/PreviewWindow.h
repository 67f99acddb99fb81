// The window that shows a document's pages: a row of buttons above, the pages below.
#pragma once

#include "Ui/Preview.h"
#include "Ui/PreviewState.h"
#include "Ui/Win32/PagePainter.h"

namespace trovex::win32 {

class Win32View;

class PreviewWindow {
 public:
  // The window is not shown yet.
  PreviewWindow(const Preview& preview, Win32View& view);
  ~PreviewWindow();
  PreviewWindow(const PreviewWindow&) = delete;
  PreviewWindow& operator=(const PreviewWindow&) = delete;

  HWND Handle() const { return window_; }
  // Shows the window on the screen of its owner.
  void Show();
  // False once the user has closed it.
  bool Open() const { return open_; }
  // A message of the thread's; true if it is used up.
  bool OnMessage(MSG& message);

 private:
  // Identifiers of the buttons, in their order.
  enum Command : int {
    kFirst = 100,
    kPrevious,
    kNext,
    kLast,
    kOnePage,
    kTwoPages,
    kFitPage,
    kFitWidth,
    kPrint,
    kSave,
    kClose = IDCANCEL,  // the Esc key
  };

  static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM w, LPARAM l);
  LRESULT OnMessage(HWND window, UINT message, WPARAM w, LPARAM l);

  void CreateButtons();
  POINT LeastSize() const;
  void OnDpiChanged(int dpi, const RECT& proposed);
  void PlaceChildren();
  HWND AddButton(int command, const Text& caption, DWORD style, int& left);
  bool OnKey(WPARAM key);
  void OnCommand(int command);
  void OnWheel(int delta);
  void OnScroll(int request);
  void OnPaint();
  void PaintSheets(HDC dc, const RECT& area);
  // Shows another page, or the same one anew.
  void Turned(bool turned);
  void ScrollBy(int pixels);
  void ScrollTo(int place);
  void ShowState();
  RECT CanvasArea() const;
  PreviewState::Layout Layout() const;
  // Runs what the program does; a run-time error that no handler catches ends the program.
  void Run(const std::function<void()>& reaction);

  const Preview& preview_;
  Win32View& view_;
  PreviewState state_;
  PagePainter painter_;
  Scale scale_;
  HWND window_ = nullptr;
  HWND canvas_ = nullptr;
  HWND label_ = nullptr;
  HWND focused_ = nullptr;  // had the focus when another window took it
  std::vector<HWND> buttons_;
  int bar_height_ = 0;
  int label_left_ = 0;
  int scroll_ = 0;  // pixels that are scrolled out at the top
  int wheel_ = 0;   // what the wheel turned and nothing followed yet
  bool open_ = true;
};

}  // namespace trovex::win32
