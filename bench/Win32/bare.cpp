// trovex-bench-bare: the least that a Windows program with a window can do. Its start is what that
// of Trovex.exe is measured against.
#include "Platform/Win32/Windows.h"

int WINAPI wWinMain(HINSTANCE instance, HINSTANCE, wchar_t*, int) {
  WNDCLASSW window_class = {};
  window_class.lpfnWndProc = DefWindowProcW;
  window_class.hInstance = instance;
  window_class.hbrBackground = GetSysColorBrush(COLOR_BTNFACE);
  window_class.lpszClassName = L"TrovexBare";
  RegisterClassW(&window_class);
  const HWND window = CreateWindowExW(0, L"TrovexBare", L"", WS_OVERLAPPEDWINDOW, 0, 0, 735, 522,
                                      nullptr, nullptr, instance, nullptr);
  ShowWindow(window, SW_SHOW);
  UpdateWindow(window);
  MSG message;
  while (GetMessageW(&message, nullptr, 0, 0) > 0) DispatchMessageW(&message);
  return 0;
}
