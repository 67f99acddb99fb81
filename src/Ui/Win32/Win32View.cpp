#include "Ui/Win32/Win32View.h"

#include "Ui/Win32/ControlWindows.h"

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
  found->second->Abandon();
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
  if (FormWindow* window = WindowOf(control)) window->Focus(control);
}

void Win32View::SetTopmost(Form& form, bool topmost) {
  if (FormWindow* window = Of(form)) {
    SetWindowPos(window->Handle(), topmost ? HWND_TOPMOST : HWND_NOTOPMOST, 0, 0, 0, 0,
                 SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
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

double Win32View::TextWidth(TextView text, const Font& font) {
  return measure_.Width(text, font);
}

FontMeasure Win32View::MeasureFont(const Font& font) {
  return measure_.MeasureOf(font);
}

}  // namespace trovex::win32
