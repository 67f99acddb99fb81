#include "Ui/Win32/PrintingBox.h"

#include "Platform/Win32/Names.h"
#include "Ui/Win32/WindowClass.h"

namespace trovex::win32 {
namespace {

constexpr wchar_t kClass[] = L"TrovexPrinting";
constexpr Place kBox = {0, 0, 4800, 1500};  // twips
constexpr Place kLabel = {150, 225, 4500, 390};
constexpr Place kButton = {1725, 900, 1350, 405};

PrintingBox* shown = nullptr;

// In the middle of the owner.
POINT Corner(HWND owner, SIZE size) {
  RECT around = {0, 0, GetSystemMetrics(SM_CXSCREEN), GetSystemMetrics(SM_CYSCREEN)};
  if (owner != nullptr) GetWindowRect(owner, &around);
  return {(around.left + around.right - size.cx) / 2, (around.top + around.bottom - size.cy) / 2};
}

}  // namespace

PrintingBox::PrintingBox(HWND owner, const Texts& texts, Fonts& fonts) : owner_(owner) {
  RegisterWindowClass(kClass, Procedure, GetSysColorBrush(COLOR_BTNFACE));
  Create(texts, fonts);
  owner_enabled_ = owner != nullptr && IsWindowEnabled(owner);
  if (owner_enabled_) EnableWindow(owner, FALSE);
  shown = this;
  ShowWindow(window_, SW_SHOW);
  SetFocus(GetDlgItem(window_, IDCANCEL));
  UpdateWindow(window_);
}

// The owner is enabled first: it is to be the window that the box leaves behind.
PrintingBox::~PrintingBox() {
  shown = nullptr;
  if (owner_enabled_) EnableWindow(owner_, TRUE);
  DestroyWindow(window_);
}

void PrintingBox::Create(const Texts& texts, Fonts& fonts) {
  constexpr DWORD kStyle = WS_POPUP | WS_CAPTION | WS_SYSMENU;
  const HINSTANCE program = GetModuleHandleW(nullptr);
  const Scale scale{owner_ == nullptr ? SystemDpi() : DpiOf(owner_)};
  RECT outer = scale.Rect(kBox);
  AdjustWindowRectEx(&outer, kStyle, FALSE, WS_EX_DLGMODALFRAME);
  const SIZE size = {outer.right - outer.left, outer.bottom - outer.top};
  const POINT at = Corner(owner_, size);
  window_ = CreateWindowExW(WS_EX_DLGMODALFRAME, kClass, Wide(texts.caption), kStyle, at.x, at.y,
                            size.cx, size.cy, owner_, nullptr, program, this);
  const auto font = reinterpret_cast<WPARAM>(fonts.Get(Font(), scale));
  const auto child = [&](const wchar_t* kind, const Text& text, DWORD style, const Place& place,
                         INT_PTR id) {
    const RECT in = scale.Rect(place);
    const HWND made = CreateWindowExW(0, kind, Wide(text), WS_CHILD | WS_VISIBLE | style, in.left,
                                      in.top, in.right - in.left, in.bottom - in.top, window_,
                                      reinterpret_cast<HMENU>(id), program, nullptr);
    SendMessageW(made, WM_SETFONT, font, TRUE);
    return made;
  };
  label_ = child(L"STATIC", {}, SS_CENTER | SS_NOPREFIX, kLabel, 0);
  child(L"BUTTON", texts.cancel, BS_DEFPUSHBUTTON | WS_TABSTOP, kButton, IDCANCEL);
}

void PrintingBox::Show(const Text& progress) {
  SetWindowTextW(label_, Wide(progress));
  UpdateWindow(label_);
}

bool PrintingBox::GoOn() {
  MSG message;
  while (!stopped_ && PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
    if (message.message == WM_QUIT) {
      PostQuitMessage(static_cast<int>(message.wParam));
      stopped_ = true;
    } else if (!IsDialogMessageW(window_, &message)) {
      TranslateMessage(&message);
      DispatchMessageW(&message);
    }
  }
  return !stopped_;
}

BOOL CALLBACK PrintingBox::Ask(HDC, int) {
  return shown == nullptr || shown->GoOn();
}

LRESULT CALLBACK PrintingBox::Procedure(HWND window, UINT message, WPARAM w, LPARAM l) {
  const bool cancelled = message == WM_COMMAND && LOWORD(w) == IDCANCEL;
  if ((cancelled || message == WM_CLOSE) && shown != nullptr && shown->window_ == window) {
    shown->stopped_ = true;
    return 0;
  }
  return DefWindowProcW(window, message, w, l);
}

}  // namespace trovex::win32
