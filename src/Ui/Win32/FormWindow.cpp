#include "Ui/Win32/FormWindow.h"

#include <algorithm>

#include "Platform/Win32/Names.h"
#include "Ui/Win32/Surface.h"
#include "Ui/Win32/SystemMenu.h"
#include "Ui/Win32/Win32View.h"
#include "Ui/Win32/WindowClass.h"

namespace trovex::win32 {
namespace {

constexpr wchar_t kClass[] = L"TrovexForm";

DWORD StyleOf(const Form& form) {
  const DWORD fixed = WS_CAPTION | WS_SYSMENU | WS_CLIPCHILDREN;
  return form.Sizable() ? fixed | WS_THICKFRAME | WS_MINIMIZEBOX | WS_MAXIMIZEBOX : fixed;
}

DWORD ExtendedStyleOf(const Form& form) {
  return form.Sizable() ? WS_EX_APPWINDOW : WS_EX_DLGMODALFRAME;
}

}  // namespace

FormWindow::FormWindow(Form& form, Win32View& view) : form_(form), view_(view) {
  RegisterWindowClass(kClass, Procedure, nullptr);
  background_ = CreateSolidBrush(GetShared().colours.Surface(form.BackColor()));
  CreateWindowOfForm();
}

FormWindow::~FormWindow() {
  controls_.clear();
  if (handle_ != nullptr) DestroyWindow(handle_);
  DeleteObject(background_);
}

void FormWindow::CreateWindowOfForm() {
  scale_.dpi = SystemDpi();
  handle_ = CreateWindowExW(ExtendedStyleOf(form_), kClass, Wide(form_.Caption()), StyleOf(form_),
                            CW_USEDEFAULT, CW_USEDEFAULT, 0, 0, nullptr, nullptr,
                            GetModuleHandleW(nullptr), this);
  scale_.dpi = DpiOf(handle_);
  MirrorSystemMenu(handle_, form_);
  DragAcceptFiles(handle_, form_.on_drop_files ? TRUE : FALSE);
  PlaceWindow();
}

// Only when they are to be seen: a form that lends its controls as tools never has any, and one
// that is being loaded changes most of them more than once.
void FormWindow::NeedControls() {
  if (controls_made_) return;
  controls_made_ = true;
  for (const auto& control : form_.Controls()) {
    auto window = CreateNativeControl(*control, *this);
    if (!window) continue;
    by_model_[control.get()] = window.get();
    controls_.push_back(std::move(window));
  }
  LowerContainers();
  PostMessageW(handle_, kNamesMessage, 0, 0);
}

// What stands on a container lies above it.
void FormWindow::LowerContainers() {
  for (const auto& control : controls_) {
    const ControlKind kind = control->Model().Kind();
    if (kind != ControlKind::kTabControl && kind != ControlKind::kPanel) continue;
    SetWindowPos(control->Handle(), HWND_BOTTOM, 0, 0, 0, 0,
                 SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
  }
}

Shared& FormWindow::GetShared() const {
  return view_.GetShared();
}

NativeControl* FormWindow::Of(const Control& control) {
  NeedControls();
  return Known(control);
}

NativeControl* FormWindow::Known(const Control& control) const {
  const auto found = by_model_.find(&control);
  return found == by_model_.end() ? nullptr : found->second;
}

NativeControl* FormWindow::Of(HWND window) const {
  const auto found = std::find_if(controls_.begin(), controls_.end(), [&](const auto& control) {
    return control->Handle() == window || IsChild(control->Handle(), window);
  });
  return found == controls_.end() ? nullptr : found->get();
}

void FormWindow::Changed(Control& control, Property property) {
  if (&control == &form_) return MirrorForm(property);
  if (NativeControl* window = Known(control)) {
    if (property == Property::kDesign) return MakeAnew(*window);
    window->Mirror(property);
  } else if (controls_made_) {
    InvalidateRect(handle_, nullptr, TRUE);  // the form draws it
  }
}

// What a window is made with cannot be changed in all of them: a new one takes the place of the
// former, with the focus if that had it.
void FormWindow::MakeAnew(NativeControl& former) {
  Control& model = former.Model();
  const HWND above = GetWindow(former.Handle(), GW_HWNDPREV);
  const bool focused = GetFocus() == former.Handle();
  const auto place = std::find_if(controls_.begin(), controls_.end(),
                                  [&](const auto& control) { return control.get() == &former; });
  const bool remembered = focused_ == &former;
  *place = CreateNativeControl(model, *this);
  if (remembered) focused_ = place->get();
  by_model_[&model] = place->get();
  SetWindowPos((*place)->Handle(), above == nullptr ? HWND_TOP : above, 0, 0, 0, 0,
               SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
  if (focused) SetFocus((*place)->Handle());
  RequestFlush();
}

void FormWindow::MirrorForm(Property property) {
  switch (property) {
    case Property::kText:
      SetWindowTextW(handle_, Wide(form_.Caption()));
      break;
    case Property::kPlace:
      PlaceWindow();
      break;
    case Property::kMenu:
      MirrorSystemMenu(handle_, form_);
      break;
    case Property::kVisible:
      form_.Visible() ? Appear() : Disappear();
      break;
    default:
      InvalidateRect(handle_, nullptr, TRUE);
  }
}

void FormWindow::Appear() {
  NeedControls();
  Flush();
  ShowWindow(handle_, SW_SHOW);
  UpdateWindow(handle_);
}

void FormWindow::Disappear() {
  view_.Leaves(handle_);
  ShowWindow(handle_, SW_HIDE);
  focused_ = nullptr;
}

void FormWindow::Abandon() {
  abandoned_ = true;
  SetWindowLongPtrW(handle_, GWLP_USERDATA, 0);
  Disappear();
}

// The model's outer size stands for its client area; the system's frame comes on top of that.
RECT FormWindow::OuterRectangle() const {
  RECT outer = {0, 0, scale_.Pixels(form_.ScaleWidth()), scale_.Pixels(form_.ScaleHeight())};
  outer = WithFrame(outer, StyleOf(form_), ExtendedStyleOf(form_), scale_.dpi);
  OffsetRect(&outer, scale_.Pixels(form_.Left()) - outer.left,
             scale_.Pixels(form_.Top()) - outer.top);
  return outer;
}

void FormWindow::PlaceWindow() {
  if (placing_ || IsIconic(handle_) || IsZoomed(handle_)) return;
  placing_ = true;
  const RECT at = OuterRectangle();
  // What fits already keeps the frame that the system gave it.
  const UINT size = FitsClient() ? SWP_NOSIZE : 0;
  SetWindowPos(handle_, nullptr, at.left, at.top, at.right - at.left, at.bottom - at.top,
               SWP_NOZORDER | SWP_NOACTIVATE | size);
  placing_ = false;
}

bool FormWindow::FitsClient() const {
  RECT client;
  GetClientRect(handle_, &client);
  return client.right == scale_.Pixels(form_.ScaleWidth()) &&
         client.bottom == scale_.Pixels(form_.ScaleHeight());
}

void FormWindow::OnSize(WPARAM kind) {
  form_.SetMinimised(kind == SIZE_MINIMIZED);
  if (kind == SIZE_MINIMIZED) return;
  if (!placing_) TellSize();
  InvalidateRect(handle_, nullptr, TRUE);
}

void FormWindow::TellSize() {
  RECT client;
  GetClientRect(handle_, &client);
  const double width = scale_.Twips(client.right) + form_.Width() - form_.ScaleWidth();
  const double height = scale_.Twips(client.bottom) + form_.Height() - form_.ScaleHeight();
  Run([&] { form_.Resize(width, height); });
}

void FormWindow::OnMove() {
  if (placing_ || IsIconic(handle_)) return;
  RECT at;
  GetWindowRect(handle_, &at);
  placing_ = true;
  form_.SetLeft(scale_.Twips(at.left));
  form_.SetTop(scale_.Twips(at.top));
  placing_ = false;
}

void FormWindow::OnDpiChanged(int dpi, const RECT& proposed) {
  scale_.dpi = dpi;
  placing_ = true;
  SetWindowPos(handle_, nullptr, proposed.left, proposed.top, proposed.right - proposed.left,
               proposed.bottom - proposed.top, SWP_NOZORDER | SWP_NOACTIVATE);
  placing_ = false;
  OnMove();
  for (const auto& control : controls_) control->Rescale();
  if (!IsIconic(handle_)) TellSize();
  Flush();
  InvalidateRect(handle_, nullptr, TRUE);
}

// The system would scale the frame with the rest, and propose a rectangle that is off by a few
// pixels.
bool FormWindow::SizeAt(int dpi, SIZE& size) const {
  if (IsIconic(handle_) || IsZoomed(handle_)) return false;
  const Scale there{dpi};
  const RECT client = {0, 0, there.Pixels(form_.ScaleWidth()), there.Pixels(form_.ScaleHeight())};
  const RECT outer = WithFrame(client, StyleOf(form_), ExtendedStyleOf(form_), dpi);
  size = {outer.right - outer.left, outer.bottom - outer.top};
  return true;
}

void FormWindow::Recolour() {
  GetShared().colours.Refresh();
  DeleteObject(background_);
  background_ = CreateSolidBrush(GetShared().colours.Surface(form_.BackColor()));
  for (const auto& control : controls_) control->Recolour();
  RedrawWindow(handle_, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
}

void FormWindow::Repaint(Control& control) {
  Flush();
  if (&control == &form_) {
    RedrawWindow(handle_, nullptr, nullptr, RDW_INVALIDATE | RDW_ALLCHILDREN | RDW_UPDATENOW);
  } else if (NativeControl* window = Known(control)) {
    UpdateWindow(window->Handle());
  }
}

void FormWindow::RequestFlush() {
  if (flush_requested_) return;
  flush_requested_ = PostMessageW(handle_, kFlushMessage, 0, 0) != FALSE;
}

void FormWindow::Flush() {
  for (const auto& control : controls_) control->Flush();
  MendFocus();
}

void FormWindow::Draw(const Stroke& stroke) {
  if (painting_ == nullptr) {
    InvalidateRect(handle_, nullptr, FALSE);
    return;
  }
  const HPEN pen = CreatePen(PS_SOLID, 1, NativeColour(stroke.colour));
  const HGDIOBJ before = SelectObject(painting_, pen);
  MoveToEx(painting_, scale_.PixelAt(stroke.x1), scale_.PixelAt(stroke.y1), nullptr);
  LineTo(painting_, scale_.PixelAt(stroke.x2), scale_.PixelAt(stroke.y2));
  SelectObject(painting_, before);
  DeleteObject(pen);
}

void FormWindow::OnPaint() {
  PAINTSTRUCT paint;
  painting_ = BeginPaint(handle_, &paint);
  RECT client;
  GetClientRect(handle_, &client);
  FillRect(painting_, &client, background_);
  PaintSurface(painting_, form_, scale_, GetShared());
  Run(form_.on_paint);
  EndPaint(handle_, &paint);
  painting_ = nullptr;
}

void FormWindow::Run(const Event& reaction) {
  if (abandoned_ || view_.Failed()) return;
  try {
    Raise(reaction);
  } catch (...) {
    // Nothing may leave through the system's frames.
    view_.Fail(std::current_exception());
  }
}

}  // namespace trovex::win32
