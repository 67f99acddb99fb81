#include "support/Win32/Bell.h"

namespace trovex::test {
namespace {

constexpr wchar_t kClass[] = L"TrovexTestBell";
constexpr UINT kRing = WM_APP;

bool BoxIsOpen() {
  return FindWindowExW(nullptr, nullptr, L"#32770", nullptr) != nullptr;
}

}  // namespace

Bell::Bell() {
  WNDCLASSW window_class = {};
  window_class.lpfnWndProc = Procedure;
  window_class.hInstance = GetModuleHandleW(nullptr);
  window_class.lpszClassName = kClass;
  RegisterClassW(&window_class);  // a second time changes nothing
  window_ = CreateWindowExW(0, kClass, L"", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr,
                            window_class.hInstance, nullptr);
}

Bell::~Bell() {
  DestroyWindow(window_);
}

void Bell::Ring() {
  PostMessageW(window_, kRing, 0, 0);
}

LRESULT CALLBACK Bell::Procedure(HWND window, UINT message, WPARAM w, LPARAM l) {
  if (message != kRing) return DefWindowProcW(window, message, w, l);
  if (BoxIsOpen()) {
    PostMessageW(window, kRing, 0, 0);
  } else {
    PostQuitMessage(0);
  }
  return 0;
}

}  // namespace trovex::test
