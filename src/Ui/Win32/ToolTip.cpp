#include "Ui/Win32/ToolTip.h"

#include "Platform/Win32/Names.h"

// Behind Windows.h, whose types it needs.
#include <commctrl.h>

namespace trovex::win32 {

void ShowToolTip(HWND window, const Text& text) {
  if (text.empty()) return;
  const HWND form = GetParent(window);
  const HWND tip =
      CreateWindowExW(WS_EX_TOPMOST, TOOLTIPS_CLASSW, nullptr, WS_POPUP | TTS_ALWAYSTIP,
                      CW_USEDEFAULT, CW_USEDEFAULT, CW_USEDEFAULT, CW_USEDEFAULT, form, nullptr,
                      GetModuleHandleW(nullptr), nullptr);
  TTTOOLINFOW tool = {};
  tool.cbSize = TTTOOLINFOW_V2_SIZE;  // the size that every version of the controls knows
  tool.uFlags = TTF_IDISHWND | TTF_SUBCLASS;
  tool.hwnd = form;
  tool.uId = reinterpret_cast<UINT_PTR>(window);
  Text copy = text;
  tool.lpszText = Wide(copy);
  SendMessageW(tip, TTM_ADDTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
}

}  // namespace trovex::win32
