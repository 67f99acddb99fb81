#include "Ui/Win32/WindowClass.h"

namespace trovex::win32 {

void RegisterWindowClass(const wchar_t* name, WNDPROC procedure, HBRUSH background) {
  WNDCLASSEXW window_class = {};
  window_class.cbSize = sizeof window_class;
  const HINSTANCE program = GetModuleHandleW(nullptr);
  if (GetClassInfoExW(program, name, &window_class) != 0) return;
  window_class.lpfnWndProc = procedure;
  window_class.hInstance = program;
  window_class.hIcon = LoadIconW(program, L"Trovex");
  window_class.hCursor = LoadCursorW(nullptr, IDC_ARROW);
  window_class.hbrBackground = background;
  window_class.lpszClassName = name;
  RegisterClassExW(&window_class);
}

}  // namespace trovex::win32
