// The one window procedure: it routes.
#include <windowsx.h>

#include <algorithm>

#include "Platform/Win32/Names.h"
#include "Ui/Win32/FormWindow.h"
#include "Ui/Win32/SystemMenu.h"
#include "Ui/Win32/Win32View.h"

// Behind Windows.h, whose types it needs.
#include <dbt.h>

namespace trovex::win32 {
namespace {

constexpr UINT kDpiChanged = 0x02E0;        // WM_DPICHANGED, from Windows 8.1 on
constexpr UINT kGetDpiScaledSize = 0x02E4;  // WM_GETDPISCALEDSIZE, from Windows 10 on

// Of the many reasons for which the system tells of devices those after which a drive may hold
// something else.
bool ChangesDrives(WPARAM reason) {
  return reason == DBT_DEVNODES_CHANGED || reason == DBT_DEVICEARRIVAL ||
         reason == DBT_DEVICEREMOVECOMPLETE;
}

}  // namespace

LRESULT CALLBACK FormWindow::Procedure(HWND window, UINT message, WPARAM w, LPARAM l) {
  if (message == WM_NCCREATE) {
    const auto* create = reinterpret_cast<CREATESTRUCTW*>(l);
    SetWindowLongPtrW(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(create->lpCreateParams));
  }
  auto* form = reinterpret_cast<FormWindow*>(GetWindowLongPtrW(window, GWLP_USERDATA));
  if (form == nullptr || form->handle_ == nullptr) return DefWindowProcW(window, message, w, l);
  if (message == WM_NCDESTROY) {
    SetWindowLongPtrW(window, GWLP_USERDATA, 0);
    form->handle_ = nullptr;
    return DefWindowProcW(window, message, w, l);
  }
  return form->OnMessage(message, w, l);
}

LRESULT FormWindow::OnMessage(UINT message, WPARAM w, LPARAM l) {
  LRESULT result = 0;
  switch (message) {
    case kFlushMessage:
      flush_requested_ = false;
      Flush();
      return 0;
    case kDrivesMessage:
      drives_requested_ = false;
      Run(form_.on_drives_changed);
      return 0;
    case WM_DEVICECHANGE:
      if (ChangesDrives(w)) RequestDrives();
      return TRUE;
    case WM_ACTIVATE:
      // At its first showing the form has only just read them.
      if (LOWORD(w) == WA_INACTIVE) left_ = true;
      if (LOWORD(w) != WA_INACTIVE && left_) RequestDrives();
      break;
    case kNamesMessage:
      for (const auto& control : controls_) control->TellName();
      return 0;
    case WM_CLOSE:
      Run([this] { form_.Close(); });
      return 0;
    case WM_SYSCOMMAND:
      if (const MenuEntry* entry = EntryOfCommand(form_, w)) {
        Run([entry] { entry->Choose(); });
        return 0;
      }
      break;
    case WM_DROPFILES:
      OnDropFiles(reinterpret_cast<HDROP>(w));
      return 0;
    case WM_SIZE:
      OnSize(w);
      return 0;
    case WM_MOVE:
      OnMove();
      return 0;
    case kDpiChanged:
      OnDpiChanged(HIWORD(w), *reinterpret_cast<const RECT*>(l));
      return 0;
    case kGetDpiScaledSize:
      if (SizeAt(static_cast<int>(w), *reinterpret_cast<SIZE*>(l))) return TRUE;
      break;
    case WM_SYSCOLORCHANGE:
      Recolour();
      return 0;
    case WM_SETTINGCHANGE:
      if (w == SPI_SETHIGHCONTRAST) Recolour();
      break;
    case WM_ERASEBKGND:
      return 1;
    case WM_PAINT:
      OnPaint();
      return 0;
    case WM_SETFOCUS:
      PassFocusOn();
      return 0;
    case WM_QUERYENDSESSION:
      return TRUE;
    case WM_ENDSESSION:
      if (w != FALSE) Run(form_.on_session_end);
      return 0;
    case WM_MOUSEMOVE:
      Run(form_.on_mouse_move);
      return 0;
    case WM_SETCURSOR:
      if (view_.GetPointer() != Pointer::kHourglass) break;
      SetCursor(LoadCursorW(nullptr, IDC_WAIT));
      return TRUE;
    default:
      if (Route(message, w, l, result)) return result;
  }
  return DefWindowProcW(handle_, message, w, l);
}

// Later, and once for all: a device that comes is told of several times, and reading it may bring
// the next message.
void FormWindow::RequestDrives() {
  if (drives_requested_ || !form_.on_drives_changed) return;
  drives_requested_ = PostMessageW(handle_, kDrivesMessage, 0, 0) != FALSE;
}

void FormWindow::OnDropFiles(HDROP drop) {
  const UINT count = DragQueryFileW(drop, 0xFFFFFFFF, nullptr, 0);
  std::vector<Text> files;
  for (UINT i = 0; i < count; ++i) {
    Text name(DragQueryFileW(drop, i, nullptr, 0), u'\0');
    DragQueryFileW(drop, i, Wide(name), static_cast<UINT>(name.size() + 1));
    files.push_back(std::move(name));
  }
  DragFinish(drop);
  if (form_.on_drop_files) Run([&] { form_.on_drop_files(files); });
}

bool FormWindow::Route(UINT message, WPARAM w, LPARAM l, LRESULT& result) {
  NativeControl* control = nullptr;
  switch (message) {
    case WM_COMMAND:
      control = Of(reinterpret_cast<HWND>(l));
      if (control != nullptr) control->OnCommand(HIWORD(w));
      return control != nullptr;
    case WM_NOTIFY: {
      auto& header = *reinterpret_cast<NMHDR*>(l);
      control = Of(header.hwndFrom);
      return control != nullptr && control->OnNotify(header, result);
    }
    case WM_HSCROLL:
      control = Of(reinterpret_cast<HWND>(l));
      if (control != nullptr) control->OnScroll(LOWORD(w));
      return control != nullptr;
    case WM_DRAWITEM: {
      const auto& item = *reinterpret_cast<const DRAWITEMSTRUCT*>(l);
      control = Of(item.hwndItem);
      if (control != nullptr) control->OnDraw(item);
      result = TRUE;
      return control != nullptr;
    }
    case WM_CTLCOLORSTATIC:
    case WM_CTLCOLOREDIT:
    case WM_CTLCOLORBTN:
      control = Of(reinterpret_cast<HWND>(l));
      result = control == nullptr
                   ? 0
                   : reinterpret_cast<LRESULT>(control->OnColour(reinterpret_cast<HDC>(w)));
      return result != 0;
    default:
      return false;
  }
}

bool FormWindow::OnKeyMessage(const MSG& message) {
  NativeControl* focused = Of(message.hwnd);
  if (message.message == WM_KEYUP) Flush();  // the panels of the keyboard
  if (message.message != WM_KEYDOWN) return false;
  if (message.wParam == VK_TAB) {
    MoveFocus(GetKeyState(VK_SHIFT) < 0);
    return true;
  }
  if (focused != nullptr && focused->OnKey(message.wParam)) return true;
  const int key = static_cast<int>(message.wParam);
  if ((key == kKeyEscape || key == kKeyEnter) && form_.on_key_press) {
    Run([&] { form_.on_key_press(key); });
    return true;
  }
  if (key == kKeyF1 && form_.on_key_down) {
    Run([&] { form_.on_key_down(key); });
    return true;
  }
  return false;
}

}  // namespace trovex::win32
