// The message loops: the program's and those of its modal windows.
#include <algorithm>

#include "Ui/Win32/PreviewWindow.h"
#include "Ui/Win32/Win32View.h"

namespace trovex::win32 {
namespace {

// A quit message left behind would close the box that tells of a failure before it is seen.
void ForgetQuit() {
  MSG message;
  while (PeekMessageW(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE) != 0) {
  }
}

}  // namespace

std::vector<HWND> Win32View::OnScreen() const {
  std::vector<HWND> windows;
  for (const auto& [form, window] : windows_) {
    if (IsWindowVisible(window->Handle())) windows.push_back(window->Handle());
  }
  if (preview_ != nullptr && IsWindowVisible(preview_->Handle()))
    windows.push_back(preview_->Handle());
  return windows;
}

HWND Win32View::Owner() const {
  const std::vector<HWND> ours = OnScreen();
  HWND window = ours.empty() ? nullptr : GetTopWindow(nullptr);
  while (window != nullptr && std::find(ours.begin(), ours.end(), window) == ours.end()) {
    window = GetWindow(window, GW_HWNDNEXT);
  }
  return window;
}

void Win32View::Leaves(HWND window) {
  for (ModalLevel* level : levels_) {
    if (level->Window() == window) level->End();
  }
}

void Win32View::Fail(std::exception_ptr failure) {
  if (failure_) return;
  failure_ = failure;
  ForgetQuit();
  if (on_failure) on_failure(failure);
  End();
  PostQuitMessage(1);
}

void Win32View::DropInput() {
  constexpr UINT kLastOfFrame = 0x00AD;  // WM_NCXBUTTONDBLCLK
  constexpr std::pair<UINT, UINT> kInput[] = {
      {WM_NCMOUSEMOVE, kLastOfFrame}, {WM_KEYFIRST, WM_KEYLAST}, {WM_MOUSEFIRST, WM_MOUSELAST}};
  MSG message;
  for (const auto& [first, last] : kInput) {
    while (PeekMessageW(&message, nullptr, first, last, PM_REMOVE) != 0) {
    }
  }
}

void Win32View::IgnoreInput(bool ignore) {
  ignoring_ += ignore ? 1 : -1;
  if (!ignore) DropInput();
}

void Win32View::HandOut(MSG& message) {
  if (preview_ != nullptr && preview_->OnMessage(message)) return;
  if (message.message >= WM_KEYFIRST && message.message <= WM_KEYLAST) {
    for (const auto& [form, window] : windows_) {
      const bool mine = message.hwnd == window->Handle() || IsChild(window->Handle(), message.hwnd);
      if (mine && window->OnKeyMessage(message)) return;
      if (mine) break;
    }
  }
  TranslateMessage(&message);
  DispatchMessageW(&message);
}

bool Win32View::PumpOne() {
  MSG message;
  if (ended_ || GetMessageW(&message, nullptr, 0, 0) <= 0) return false;
  HandOut(message);
  // Within another loop one of them may still have a message on its way.
  if (levels_.empty()) gone_.clear();
  return !ended_;
}

void Win32View::Run() {
  while (PumpOne()) {
  }
  if (levels_.empty()) gone_.clear();
  ForgetQuit();
  if (failure_) std::rethrow_exception(failure_);
}

void Win32View::RunAbove(HWND window, const std::function<void()>& show,
                         const std::function<bool()>& open) {
  const ModalLevel level(levels_, window, Owner(), OnScreen());
  show();
  while (open() && PumpOne()) {
  }
  if (ended_) PostQuitMessage(0);
}

void Win32View::RunModal(Form& form) {
  const FormWindow* window = Of(form);
  if (window == nullptr) return;
  // The form may be unloaded meanwhile, with its window: only the list tells that it is there.
  RunAbove(
      window->Handle(), [&] { form.Show(); },
      [&] { return Of(form) != nullptr && form.Visible(); });
}

void Win32View::ShowPreview(const Preview& preview) {
  PreviewWindow window(preview, *this);
  preview_ = &window;
  RunAbove(
      window.Handle(), [&] { window.Show(); }, [&] { return window.Open(); });
  preview_ = nullptr;
}

}  // namespace trovex::win32
