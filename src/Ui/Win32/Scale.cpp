#include "Ui/Win32/Scale.h"

namespace trovex::win32 {
namespace {

// Present from Windows 10 on.
using GetDpiForWindowFunction = UINT(WINAPI*)(HWND);
using AdjustForDpiFunction = BOOL(WINAPI*)(RECT*, DWORD, BOOL, DWORD, UINT);

template <typename Function>
Function Find(const char* name) {
  const auto found = GetProcAddress(GetModuleHandleW(L"user32.dll"), name);
  return reinterpret_cast<Function>(reinterpret_cast<void*>(found));
}

}  // namespace

int SystemDpi() {
  const HDC screen = GetDC(nullptr);
  const int dpi = GetDeviceCaps(screen, LOGPIXELSX);
  ReleaseDC(nullptr, screen);
  return dpi;
}

int DpiOf(HWND window) {
  static const auto get_dpi = Find<GetDpiForWindowFunction>("GetDpiForWindow");
  const UINT dpi = get_dpi != nullptr ? get_dpi(window) : 0;
  return dpi != 0 ? static_cast<int>(dpi) : SystemDpi();
}

RECT WithFrame(RECT client, DWORD style, DWORD extended_style, int dpi) {
  static const auto for_dpi = Find<AdjustForDpiFunction>("AdjustWindowRectExForDpi");
  if (for_dpi == nullptr ||
      !for_dpi(&client, style, FALSE, extended_style, static_cast<UINT>(dpi))) {
    AdjustWindowRectEx(&client, style, FALSE, extended_style);
  }
  return client;
}

}  // namespace trovex::win32
