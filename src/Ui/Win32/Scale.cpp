#include "Ui/Win32/Scale.h"

namespace trovex::win32 {
namespace {

constexpr unsigned kDesktopColour = 0x80000000;

// Present from Windows 10 on.
using GetDpiForWindowFunction = UINT(WINAPI*)(HWND);

GetDpiForWindowFunction FindGetDpiForWindow() {
  const auto found = GetProcAddress(GetModuleHandleW(L"user32.dll"), "GetDpiForWindow");
  return reinterpret_cast<GetDpiForWindowFunction>(reinterpret_cast<void*>(found));
}

}  // namespace

int SystemDpi() {
  const HDC screen = GetDC(nullptr);
  const int dpi = GetDeviceCaps(screen, LOGPIXELSX);
  ReleaseDC(nullptr, screen);
  return dpi;
}

int DpiOf(HWND window) {
  static const GetDpiForWindowFunction get_dpi = FindGetDpiForWindow();
  const UINT dpi = get_dpi != nullptr ? get_dpi(window) : 0;
  return dpi != 0 ? static_cast<int>(dpi) : SystemDpi();
}

COLORREF NativeColour(unsigned colour) {
  if ((colour & kDesktopColour) == 0) return colour;
  return GetSysColor(static_cast<int>(colour & 0xFF));
}

}  // namespace trovex::win32
