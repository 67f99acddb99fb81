#include "support/Win32/BoxAnswerer.h"

#include <algorithm>
#include <cwchar>

#include "Platform/Win32/Names.h"

namespace trovex::test {
namespace {

constexpr int kMessageText = 0xFFFF;  // identifier of the message's window in a message box

Text TextOf(HWND window) {
  wchar_t text[4096] = {};
  if (window != nullptr) GetWindowTextW(window, text, 4096);
  return FromWide(text);
}

bool IsDialog(HWND window) {
  wchar_t name[32] = {};
  GetClassNameW(window, name, 32);
  return std::wcscmp(name, L"#32770") == 0 && GetParent(window) != nullptr;
}

}  // namespace

BoxAnswerer* BoxAnswerer::current_ = nullptr;

BoxAnswerer::BoxAnswerer() : hook_(SetWindowsHookExW(WH_CBT, Hook, nullptr, GetCurrentThreadId())) {
  current_ = this;
}

BoxAnswerer::~BoxAnswerer() {
  UnhookWindowsHookEx(hook_);
  current_ = nullptr;
}

LRESULT CALLBACK BoxAnswerer::Hook(int code, WPARAM w, LPARAM l) {
  if (code == HCBT_ACTIVATE && current_ != nullptr) {
    const HWND window = reinterpret_cast<HWND>(w);
    if (IsDialog(window)) current_->Answer(window);
  }
  return CallNextHookEx(nullptr, code, w, l);
}

void BoxAnswerer::Answer(HWND box) {
  if (std::find(answered_.begin(), answered_.end(), box) != answered_.end()) return;
  answered_.push_back(box);
  boxes_.push_back({TextOf(box), TextOf(GetDlgItem(box, kMessageText)), GetWindow(box, GW_OWNER)});
  int button = IDCANCEL;
  if (buttons_.empty()) {
    unexpected_.push_back(boxes_.back());
  } else {
    button = buttons_.front();
    buttons_.pop_front();
  }
  PostMessageW(box, WM_COMMAND, static_cast<WPARAM>(button), 0);
}

}  // namespace trovex::test
