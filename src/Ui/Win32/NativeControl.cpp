#include "Ui/Win32/NativeControl.h"

#include <commctrl.h>
#include <windowsx.h>

#include "Ui/TabControl.h"
#include "Ui/Win32/Accessibility.h"
#include "Ui/Win32/FormWindow.h"
#include "Ui/Win32/ToolTip.h"

namespace trovex::win32 {
namespace {

constexpr UINT_PTR kSubclassId = 1;

// Visible on a page that is not in front is not to be seen.
bool OnVisiblePage(const Control& model) {
  const Control* container = model.Container();
  if (container == nullptr) return true;
  const bool page_in_front = container->Kind() != ControlKind::kTabControl ||
                             static_cast<const TabControl*>(container)->Tab() == model.Page();
  return container->Visible() && page_in_front;
}

}  // namespace

NativeControl::~NativeControl() {
  if (handle_ != nullptr) DestroyWindow(handle_);
}

void NativeControl::Create(const wchar_t* window_class, DWORD style, DWORD extended_style) {
  const RECT at = Rectangle();
  const DWORD shown = model_.Visible() && OnVisiblePage(model_) ? WS_VISIBLE : 0;
  const DWORD enabled = model_.Enabled() ? 0 : WS_DISABLED;
  style |= WS_CHILD | WS_CLIPSIBLINGS | shown | enabled;
  handle_ = CreateWindowExW(extended_style, window_class, L"", style, at.left, at.top,
                            at.right - at.left, at.bottom - at.top, form_.Handle(), nullptr,
                            GetModuleHandleW(nullptr), nullptr);
  SetWindowSubclass(handle_, Subclass, kSubclassId, reinterpret_cast<DWORD_PTR>(this));
  ShowToolTip(handle_, model_.ToolTip());
  Rescale();
}

void NativeControl::TellName() {
  SetAccessibleName(handle_, model_.AccessibleName());
}

void NativeControl::ApplyVisible() {
  ShowWindow(handle_, model_.Visible() && OnVisiblePage(model_) ? SW_SHOWNA : SW_HIDE);
}

void NativeControl::Mirror(Property property) {
  const bool before = mirroring_;
  mirroring_ = true;
  switch (property) {
    case Property::kVisible:
      ApplyVisible();
      break;
    case Property::kEnabled:
      EnableWindow(handle_, model_.Enabled());
      InvalidateRect(handle_, nullptr, TRUE);
      form_.RequestFlush();  // it may have had the focus
      break;
    case Property::kPlace:
      Rescale();
      break;
    default:
      MirrorProperty(property);
  }
  mirroring_ = before;
}

RECT NativeControl::Rectangle() const {
  Place place = model_.GetPlace();
  if (const Control* container = model_.Container()) {
    place.left += container->Left();
    place.top += container->Top();
  }
  return GetScale().Rect(place);
}

void NativeControl::Rescale() {
  const RECT at = Rectangle();
  SetWindowPos(handle_, nullptr, at.left, at.top, at.right - at.left, at.bottom - at.top,
               SWP_NOZORDER | SWP_NOACTIVATE);
  const HFONT font = GetShared().fonts.Get(ModelFont(), GetScale());
  Send(WM_SETFONT, reinterpret_cast<WPARAM>(font), IsWindowVisible(handle_));
}

// What the system draws wants to be told; the rest is drawn anew.
void NativeControl::Recolour() {
  Send(WM_SYSCOLORCHANGE);
  InvalidateRect(handle_, nullptr, TRUE);
}

HBRUSH NativeControl::OnSurface(HDC dc, unsigned text) const {
  SetBkMode(dc, TRANSPARENT);
  SetTextColor(dc, GetShared().colours.SurfaceText(text, form_.Model().BackColor()));
  return form_.Background();
}

Scale NativeControl::GetScale() const {
  return form_.GetScale();
}
Shared& NativeControl::GetShared() const {
  return form_.GetShared();
}

LRESULT CALLBACK NativeControl::Subclass(HWND window, UINT message, WPARAM w, LPARAM l, UINT_PTR,
                                         DWORD_PTR data) {
  auto* control = reinterpret_cast<NativeControl*>(data);
  if (message == WM_NCDESTROY) {
    RemoveWindowSubclass(window, Subclass, kSubclassId);
    control->handle_ = nullptr;
  } else if (message == WM_SETFOCUS) {
    control->form_.Focused(*control);
    control->getting_focus_ = true;
    const LRESULT result = DefSubclassProc(window, message, w, l);
    control->getting_focus_ = false;
    return result;
  } else if (message == WM_LBUTTONDOWN || message == WM_LBUTTONDBLCLK || message == WM_KEYDOWN) {
    control->OnInput(message);
  } else if (message == WM_MOUSEMOVE) {
    // Windows repeats the message where nothing has moved.
    const POINT at = {GET_X_LPARAM(l), GET_Y_LPARAM(l)};
    const bool moved = at.x != control->last_mouse_.x || at.y != control->last_mouse_.y;
    control->last_mouse_ = at;
    if (moved) control->form_.Run(control->model_.on_mouse_move);
  } else if (message == WM_NOTIFY) {
    const LRESULT result = DefSubclassProc(window, message, w, l);
    control->OnPartNotify(*reinterpret_cast<const NMHDR*>(l));
    return result;
  }
  return DefSubclassProc(window, message, w, l);
}

}  // namespace trovex::win32
