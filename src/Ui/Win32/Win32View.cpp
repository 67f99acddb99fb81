#include "Ui/Win32/Win32View.h"

#include "Ui/Win32/ControlWindows.h"
#include "Ui/Win32/PreviewWindow.h"

namespace trovex::win32 {
namespace {

void InitCommonControls() {
  INITCOMMONCONTROLSEX controls = {sizeof controls, ICC_WIN95_CLASSES | ICC_STANDARD_CLASSES};
  InitCommonControlsEx(&controls);
}

// Present from Windows XP on: a long scan keeps its window instead of a ghost of it.
void KeepWindowsAlive() {
  DisableProcessWindowsGhosting();
}

// A quit message left behind would close the box that tells of a failure before it is seen.
void ForgetQuit() {
  MSG message;
  while (PeekMessageW(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE) != 0) {
  }
}

}  // namespace

Win32View::Win32View() {
  InitCommonControls();
  KeepWindowsAlive();
}

Win32View::~Win32View() = default;

FormWindow* Win32View::Of(const Form& form) const {
  const auto found = windows_.find(&form);
  return found == windows_.end() ? nullptr : found->second.get();
}

FormWindow* Win32View::WindowOf(Control& control) const {
  const Form* form =
      control.Kind() == ControlKind::kForm ? static_cast<Form*>(&control) : control.Parent();
  return form == nullptr ? nullptr : Of(*form);
}

void Win32View::Attach(Form& form) {
  windows_[&form] = std::make_unique<FormWindow>(form, *this);
}

void Win32View::Detach(Form& form) {
  const auto found = windows_.find(&form);
  if (found == windows_.end()) return;
  // One of its messages may be on its way through the window procedure.
  ShowWindow(found->second->Handle(), SW_HIDE);
  gone_.push_back(std::move(found->second));
  windows_.erase(found);
}

void Win32View::Changed(Control& control, Property property) {
  if (FormWindow* window = WindowOf(control)) window->Changed(control, property);
}

void Win32View::Repaint(Control& control) {
  if (FormWindow* window = WindowOf(control)) window->Repaint(control);
}

void Win32View::SetFocus(Control& control) {
  const FormWindow* window = WindowOf(control);
  NativeControl* native = window == nullptr ? nullptr : window->Of(control);
  if (native != nullptr && GetFocus() != native->Handle()) ::SetFocus(native->Handle());
}

void Win32View::SetTopmost(Form& form, bool topmost) {
  if (FormWindow* window = Of(form)) {
    SetWindowPos(window->Handle(), topmost ? HWND_TOPMOST : HWND_NOTOPMOST, 0, 0, 0, 0,
                 SWP_NOMOVE | SWP_NOSIZE);
  }
}

void Win32View::BringToFront(Form& form) {
  if (FormWindow* window = Of(form)) {
    SetWindowPos(window->Handle(), HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE);
  }
}

void Win32View::DrawStroke(Form& form, const Stroke& stroke) {
  if (FormWindow* window = Of(form)) window->Draw(stroke);
}

void Win32View::SetPointer(Pointer pointer) {
  pointer_ = pointer;
  SetCursor(LoadCursorW(nullptr, pointer == Pointer::kHourglass ? IDC_WAIT : IDC_ARROW));
}

Extent Win32View::ScreenSize() {
  const Scale scale{SystemDpi()};
  return {scale.Twips(GetSystemMetrics(SM_CXSCREEN)), scale.Twips(GetSystemMetrics(SM_CYSCREEN))};
}

HWND Win32View::Owner() const {
  const HWND active = GetActiveWindow();
  return active != nullptr && IsWindowVisible(active) ? active : nullptr;
}

void Win32View::Fail(std::exception_ptr error) {
  if (!failure_) failure_ = std::move(error);
  End();
  PostQuitMessage(1);
}

bool Win32View::PumpOne() {
  MSG message;
  if (ended_ || GetMessageW(&message, nullptr, 0, 0) <= 0) return false;
  if (preview_ != nullptr && preview_->OnMessage(message)) return !ended_;
  if (message.message >= WM_KEYFIRST && message.message <= WM_KEYLAST) {
    for (const auto& [form, window] : windows_) {
      const bool mine = message.hwnd == window->Handle() || IsChild(window->Handle(), message.hwnd);
      if (mine && window->OnKeyMessage(message)) return !ended_;
      if (mine) break;
    }
  }
  TranslateMessage(&message);
  DispatchMessageW(&message);
  gone_.clear();
  return !ended_;
}

void Win32View::Run() {
  while (PumpOne()) {
  }
  gone_.clear();
  ForgetQuit();
  if (failure_) std::rethrow_exception(failure_);
}

void Win32View::RunAlone(const Form* form, const std::function<bool()>& open) {
  std::vector<HWND> disabled;
  for (const auto& [other, window] : windows_) {
    if (other == form || !IsWindowEnabled(window->Handle())) continue;
    EnableWindow(window->Handle(), FALSE);
    disabled.push_back(window->Handle());
  }
  while (open() && PumpOne()) {
  }
  for (HWND window : disabled) EnableWindow(window, TRUE);
  if (!disabled.empty()) SetActiveWindow(disabled.back());
  if (ended_) PostQuitMessage(0);
}

void Win32View::RunModal(Form& form) {
  // The form may be unloaded meanwhile, with its window: only the list tells that it is there.
  RunAlone(&form, [&] { return Of(form) != nullptr && form.Visible(); });
}

void Win32View::ShowPreview(const Preview& preview) {
  PreviewWindow window(preview, *this, Owner());
  preview_ = &window;
  RunAlone(nullptr, [&] { return window.Open(); });
  preview_ = nullptr;
}

double Win32View::TextWidth(TextView text, const Font& font) {
  return measure_.Width(text, font);
}

FontMeasure Win32View::MeasureFont(const Font& font) {
  return measure_.MeasureOf(font);
}

}  // namespace trovex::win32
