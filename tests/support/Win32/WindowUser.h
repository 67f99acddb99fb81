// A user before real windows, who acts by messages to them.
#pragma once

#include "Platform/Win32/Names.h"
#include "Ui/Form.h"
#include "Ui/Win32/ControlWindows.h"
#include "Ui/Win32/Win32View.h"
#include "support/Win32/Bell.h"

namespace trovex::test {

// Holds the view, in place for its life. Each action ends when the program is at rest.
class WindowUser {
 public:
  // Handles all messages that are waiting, and no more.
  void Rest() {
    bell_.Ring();
    view.Run();
  }

  HWND Handle(const Form& form) const { return view.Of(form)->Handle(); }
  HWND Handle(const Control& control) const {
    return view.Of(*control.Parent())->Of(control)->Handle();
  }
  LRESULT Ask(const Control& control, UINT message, WPARAM w = 0, LPARAM l = 0) const {
    return SendMessageW(Handle(control), message, w, l);
  }
  // The first 255 characters that a window shows.
  Text Shown(HWND window) const {
    Text text(256, u'\0');
    text.resize(static_cast<std::size_t>(GetWindowTextW(window, Wide(text), 256)));
    return text;
  }
  Text Shown(const Control& control) const { return Shown(Handle(control)); }
  // The window's place in its form's client area, in pixels.
  RECT PlaceOf(const Control& control) const {
    RECT at;
    GetWindowRect(Handle(control), &at);
    MapWindowPoints(nullptr, Handle(*control.Parent()), reinterpret_cast<POINT*>(&at), 2);
    return at;
  }
  SIZE ClientSize(const Form& form) const {
    RECT client;
    GetClientRect(Handle(form), &client);
    return {client.right, client.bottom};
  }

  void Press(const Control& control, WPARAM key) {
    PostMessageW(Handle(control), WM_KEYDOWN, key, 1);
    PostMessageW(Handle(control), WM_KEYUP, key, 1);
    Rest();
  }
  void PressWithControl(const Control& control, WPARAM key) {
    BYTE keys[256] = {};
    keys[VK_CONTROL] = 0x80;
    SetKeyboardState(keys);
    Press(control, key);
    keys[VK_CONTROL] = 0;
    SetKeyboardState(keys);
  }
  void Click(const Control& control, int x, int y) {
    PostMessageW(Handle(control), WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(x, y));
    PostMessageW(Handle(control), WM_LBUTTONUP, 0, MAKELPARAM(x, y));
    Rest();
  }
  void DoubleClick(const Control& control, int x, int y) {
    Click(control, x, y);
    PostMessageW(Handle(control), WM_LBUTTONDBLCLK, MK_LBUTTON, MAKELPARAM(x, y));
    PostMessageW(Handle(control), WM_LBUTTONUP, 0, MAKELPARAM(x, y));
    Rest();
  }
  void Push(const Button& button) {
    PostMessageW(Handle(button), BM_CLICK, 0, 0);
    Rest();
  }
  // Drags the window's edge until its client area measures so many pixels.
  void ResizeClient(const Form& form, int width, int height) {
    const RECT outer = WithFrame(form, {0, 0, width, height});
    SetWindowPos(Handle(form), nullptr, 0, 0, outer.right - outer.left, outer.bottom - outer.top,
                 SWP_NOMOVE | SWP_NOZORDER);
    Rest();
  }
  // Moves the form to a monitor of another resolution, on which frames are as wide as on this one.
  void MoveToResolution(const Form& form, int dpi) {
    const win32::Scale there{dpi};
    const RECT outer =
        WithFrame(form, {0, 0, there.Pixels(form.ScaleWidth()), there.Pixels(form.ScaleHeight())});
    RECT at;
    GetWindowRect(Handle(form), &at);
    MoveToResolution(
        form, dpi,
        {at.left, at.top, at.left + outer.right - outer.left, at.top + outer.bottom - outer.top});
  }
  // The same, into a rectangle that the system proposes.
  void MoveToResolution(const Form& form, int dpi, RECT proposed) {
    constexpr UINT kDpiChanged = 0x02E0;
    SendMessageW(Handle(form), kDpiChanged, MAKEWPARAM(dpi, dpi),
                 reinterpret_cast<LPARAM>(&proposed));
    Rest();
  }
  // A client area with the form's frame around it.
  RECT WithFrame(const Form& form, RECT client) const {
    const HWND window = Handle(form);
    AdjustWindowRectEx(&client, static_cast<DWORD>(GetWindowLongPtrW(window, GWL_STYLE)), FALSE,
                       static_cast<DWORD>(GetWindowLongPtrW(window, GWL_EXSTYLE)));
    return client;
  }

  win32::Win32View view;

 private:
  ViewScope view_scope_{view};
  Bell bell_;
};

}  // namespace trovex::test
