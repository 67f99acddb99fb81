#include "Ui/Win32/PreviewWindow.h"

#include <algorithm>

#include "Platform/Win32/Names.h"
#include "Ui/Win32/Printing.h"
#include "Ui/Win32/Win32View.h"
#include "Ui/Win32/WindowClass.h"

namespace trovex::win32 {
namespace {

constexpr wchar_t kClass[] = L"TrovexPreview";
constexpr int kScrollStep = 60;      // pixels
constexpr double kLeastPage = 3000;  // twips, of its height
constexpr DWORD kStyle = WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN;
constexpr UINT kDpiChanged = 0x02E0;  // WM_DPICHANGED, from Windows 8.1 on
const Font kButtonFont;

int WidthOf(const Text& caption, HFONT font) {
  const HDC dc = GetDC(nullptr);
  const HGDIOBJ former = SelectObject(dc, font);
  SIZE size = {};
  GetTextExtentPoint32W(dc, Wide(caption), static_cast<int>(caption.size()), &size);
  SelectObject(dc, former);
  ReleaseDC(nullptr, dc);
  return size.cx;
}

// Most of the screen that the owner stands on, in its middle.
RECT Placed(HWND owner) {
  MONITORINFO info = {};
  info.cbSize = sizeof info;
  GetMonitorInfoW(MonitorFromWindow(owner, MONITOR_DEFAULTTOPRIMARY), &info);
  RECT area = info.rcWork;
  InflateRect(&area, -(area.right - area.left) / 16, -(area.bottom - area.top) / 24);
  return area;
}

}  // namespace

PreviewWindow::PreviewWindow(const Preview& preview, Win32View& view)
    : preview_(preview),
      view_(view),
      state_(preview.pages),
      painter_(preview.pages, view.GetShared().fonts, view.Measure()) {
  RegisterWindowClass(kClass, Procedure, GetSysColorBrush(COLOR_BTNFACE));
  const Text& title = preview.pages.title;
  const Text caption = preview.texts.caption + (title.empty() ? Text() : u" - " + title) + u" - " +
                       preview.application;
  window_ = CreateWindowExW(0, kClass, Wide(caption), kStyle, CW_USEDEFAULT, CW_USEDEFAULT, 0, 0,
                            nullptr, nullptr, GetModuleHandleW(nullptr), this);
  scale_.dpi = DpiOf(window_);
  canvas_ = CreateWindowExW(WS_EX_CLIENTEDGE, kClass, L"", WS_CHILD | WS_VISIBLE | WS_VSCROLL, 0, 0,
                            0, 0, window_, nullptr, GetModuleHandleW(nullptr), this);
  CreateButtons();
}

void PreviewWindow::Show() {
  const RECT at = Placed(GetWindow(window_, GW_OWNER));
  MoveWindow(window_, at.left, at.top, at.right - at.left, at.bottom - at.top, FALSE);
  PlaceChildren();
  ShowState();
  ShowWindow(window_, SW_SHOW);
  SetFocus(canvas_);
}

PreviewWindow::~PreviewWindow() {
  DestroyWindow(window_);
}

HWND PreviewWindow::AddButton(int command, const Text& caption, DWORD style, int& left) {
  const HFONT font = view_.GetShared().fonts.Get(kButtonFont, scale_);
  const int height = scale_.Pixels(375);
  const int width = std::max(scale_.Pixels(480), WidthOf(caption, font) + scale_.Pixels(240));
  const HWND button = CreateWindowExW(0, L"BUTTON", Wide(caption), WS_CHILD | WS_VISIBLE | style,
                                      left, scale_.Pixels(90), width, height, window_,
                                      reinterpret_cast<HMENU>(static_cast<INT_PTR>(command)),
                                      GetModuleHandleW(nullptr), nullptr);
  SendMessageW(button, WM_SETFONT, reinterpret_cast<WPARAM>(font), TRUE);
  left += width + scale_.Pixels(45);
  buttons_.push_back(button);
  return button;
}

void PreviewWindow::CreateButtons() {
  const PreviewTexts& texts = preview_.texts;
  constexpr DWORD kPush = BS_PUSHBUTTON | WS_TABSTOP;
  constexpr DWORD kChoice = BS_AUTORADIOBUTTON | BS_PUSHLIKE;
  constexpr DWORD kFirstChoice = kChoice | WS_GROUP | WS_TABSTOP;
  const int gap = scale_.Pixels(150);
  int left = scale_.Pixels(90);
  AddButton(kFirst, texts.first, kPush, left);
  AddButton(kPrevious, texts.previous, kPush, left);
  AddButton(kNext, texts.next, kPush, left);
  AddButton(kLast, texts.last, kPush, left);
  left += gap;
  AddButton(kOnePage, texts.one_page, kFirstChoice, left);
  AddButton(kTwoPages, texts.two_pages, kChoice, left);
  left += gap;
  AddButton(kFitPage, texts.fit_page, kFirstChoice, left);
  AddButton(kFitWidth, texts.fit_width, kChoice, left);
  left += gap;
  AddButton(kPrint, texts.print, kPush | WS_GROUP, left);
  AddButton(kSave, texts.save, kPush, left);
  AddButton(kClose, texts.close, kPush, left);
  label_left_ = left + gap;
  label_ = CreateWindowExW(0, L"STATIC", L"", WS_CHILD | WS_VISIBLE | SS_NOPREFIX | SS_CENTERIMAGE,
                           0, 0, 0, 0, window_, nullptr, GetModuleHandleW(nullptr), nullptr);
  SendMessageW(label_, WM_SETFONT,
               reinterpret_cast<WPARAM>(view_.GetShared().fonts.Get(kButtonFont, scale_)), TRUE);
  bar_height_ = scale_.Pixels(555);
}

void PreviewWindow::PlaceChildren() {
  RECT client = {};
  GetClientRect(window_, &client);
  MoveWindow(label_, label_left_, scale_.Pixels(90),
             std::max(0, static_cast<int>(client.right) - label_left_), scale_.Pixels(375), TRUE);
  MoveWindow(canvas_, 0, bar_height_, client.right,
             std::max(0, static_cast<int>(client.bottom) - bar_height_), TRUE);
  ScrollTo(scroll_);
}

LRESULT CALLBACK PreviewWindow::Procedure(HWND window, UINT message, WPARAM w, LPARAM l) {
  if (message == WM_NCCREATE) {
    const auto* creation = reinterpret_cast<const CREATESTRUCTW*>(l);
    SetWindowLongPtrW(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(creation->lpCreateParams));
  }
  auto* self = reinterpret_cast<PreviewWindow*>(GetWindowLongPtrW(window, GWLP_USERDATA));
  return self == nullptr || self->canvas_ == nullptr ? DefWindowProcW(window, message, w, l)
                                                     : self->OnMessage(window, message, w, l);
}

LRESULT PreviewWindow::OnMessage(HWND window, UINT message, WPARAM w, LPARAM l) {
  switch (message) {
    case WM_COMMAND:
      if (HIWORD(w) == BN_CLICKED) Run([&] { OnCommand(LOWORD(w)); });
      return 0;
    case WM_CLOSE:
      open_ = false;
      return 0;
    case WM_SIZE:
      if (window == window_) PlaceChildren();
      return 0;
    case WM_GETMINMAXINFO:
      reinterpret_cast<MINMAXINFO*>(l)->ptMinTrackSize = LeastSize();
      return 0;
    case kDpiChanged:
      OnDpiChanged(HIWORD(w), *reinterpret_cast<const RECT*>(l));
      return 0;
    case WM_MOUSEWHEEL:
      OnWheel(GET_WHEEL_DELTA_WPARAM(w));
      return 0;
    case WM_VSCROLL:
      OnScroll(LOWORD(w));
      return 0;
    case WM_ACTIVATE:
      if (LOWORD(w) == WA_INACTIVE && IsChild(window_, GetFocus())) focused_ = GetFocus();
      break;
    case WM_SETFOCUS:
      if (window == window_) SetFocus(IsWindowEnabled(focused_) ? focused_ : canvas_);
      return 0;
    case WM_LBUTTONDOWN:
      SetFocus(canvas_);
      return 0;
    case WM_ERASEBKGND:
      if (window == canvas_) return 1;  // painted whole
      break;
    case WM_PAINT:
      if (window != canvas_) break;
      OnPaint();
      return 0;
    default:
      break;
  }
  return DefWindowProcW(window, message, w, l);
}

// All buttons can be reached, and some of the page.
POINT PreviewWindow::LeastSize() const {
  const RECT client = {0, 0, label_left_, bar_height_ + scale_.Pixels(kLeastPage)};
  const RECT outer = WithFrame(client, kStyle, 0, scale_.dpi);
  return {outer.right - outer.left, outer.bottom - outer.top};
}

void PreviewWindow::OnDpiChanged(int dpi, const RECT& proposed) {
  scale_.dpi = dpi;
  for (HWND button : buttons_) DestroyWindow(button);
  buttons_.clear();
  DestroyWindow(label_);
  CreateButtons();
  SetWindowPos(window_, nullptr, proposed.left, proposed.top, proposed.right - proposed.left,
               proposed.bottom - proposed.top, SWP_NOZORDER | SWP_NOACTIVATE);
  PlaceChildren();
  ShowState();
  focused_ = nullptr;
  if (GetActiveWindow() == window_) SetFocus(canvas_);
}

bool PreviewWindow::OnMessage(MSG& message) {
  if (message.hwnd != window_ && !IsChild(window_, message.hwnd)) return false;
  if (message.message == WM_KEYDOWN && OnKey(message.wParam)) return true;
  return IsDialogMessageW(window_, &message);
}

bool PreviewWindow::OnKey(WPARAM key) {
  switch (key) {
    case VK_NEXT:
    case VK_RIGHT:
      Turned(state_.Next());
      return true;
    case VK_PRIOR:
    case VK_LEFT:
      Turned(state_.Previous());
      return true;
    case VK_HOME:
      Turned(state_.GoTo(0));
      return true;
    case VK_END:
      Turned(state_.GoTo(state_.Count() - 1));
      return true;
    case VK_DOWN:
      ScrollBy(kScrollStep);
      return true;
    case VK_UP:
      ScrollBy(-kScrollStep);
      return true;
    case 'P':
      if (GetKeyState(VK_CONTROL) >= 0) return false;
      Run([&] { OnCommand(kPrint); });
      return true;
    default:
      return false;
  }
}

void PreviewWindow::OnCommand(int command) {
  switch (command) {
    case kFirst:
      return Turned(state_.GoTo(0));
    case kPrevious:
      return Turned(state_.Previous());
    case kNext:
      return Turned(state_.Next());
    case kLast:
      return Turned(state_.GoTo(state_.Count() - 1));
    case kOnePage:
    case kTwoPages:
      state_.ShowTwo(command == kTwoPages);
      return Turned(true);
    case kFitPage:
    case kFitWidth:
      state_.SetFit(command == kFitWidth ? PreviewState::Fit::kWidth : PreviewState::Fit::kPage);
      return Turned(true);
    case kPrint:
      return PrintPages(window_, preview_, view_.GetShared().fonts, view_.Measure());
    case kSave:
      return preview_.on_save();
    case kClose:
      open_ = false;
      return;
    default:
      return;
  }
}

// The wheel scrolls, and turns the page at its end.
void PreviewWindow::OnWheel(int delta) {
  wheel_ += delta;
  for (; wheel_ >= WHEEL_DELTA; wheel_ -= WHEEL_DELTA) {
    if (scroll_ > 0) {
      ScrollBy(-kScrollStep);
    } else if (state_.Previous()) {
      Turned(true);
      ScrollTo(Layout().height);
    }
  }
  for (; wheel_ <= -WHEEL_DELTA; wheel_ += WHEEL_DELTA) {
    const int before = scroll_;
    ScrollBy(kScrollStep);
    if (scroll_ == before) Turned(state_.Next());
  }
}

void PreviewWindow::OnScroll(int request) {
  SCROLLINFO info = {};
  info.cbSize = sizeof info;
  info.fMask = SIF_ALL;
  GetScrollInfo(canvas_, SB_VERT, &info);
  switch (request) {
    case SB_LINEUP:
      return ScrollBy(-kScrollStep);
    case SB_LINEDOWN:
      return ScrollBy(kScrollStep);
    case SB_PAGEUP:
      return ScrollBy(-static_cast<int>(info.nPage));
    case SB_PAGEDOWN:
      return ScrollBy(static_cast<int>(info.nPage));
    case SB_THUMBTRACK:
    case SB_THUMBPOSITION:
      return ScrollTo(info.nTrackPos);
    default:
      return;
  }
}

void PreviewWindow::Turned(bool turned) {
  if (!turned) return;
  ScrollTo(0);
  ShowState();
}

void PreviewWindow::ScrollBy(int pixels) {
  ScrollTo(scroll_ + pixels);
}

void PreviewWindow::ScrollTo(int place) {
  const RECT area = CanvasArea();
  const int height = Layout().height;
  scroll_ = std::clamp(place, 0, std::max(0, height - static_cast<int>(area.bottom)));
  SCROLLINFO info = {};
  info.cbSize = sizeof info;
  info.fMask = SIF_RANGE | SIF_PAGE | SIF_POS | SIF_DISABLENOSCROLL;
  info.nMax = std::max(0, height - 1);
  info.nPage = static_cast<UINT>(area.bottom);
  info.nPos = scroll_;
  SetScrollInfo(canvas_, SB_VERT, &info, TRUE);
  InvalidateRect(canvas_, nullptr, FALSE);
}

// What the buttons can do, which are pressed, and the number of the page.
void PreviewWindow::ShowState() {
  const auto enable = [&](int command, bool enabled) {
    const HWND button = GetDlgItem(window_, command);
    if (!enabled && GetFocus() == button) SetFocus(canvas_);
    EnableWindow(button, enabled ? TRUE : FALSE);
  };
  const std::size_t end = state_.First() + state_.Shown();
  enable(kFirst, state_.First() > 0);
  enable(kPrevious, state_.First() > 0);
  enable(kNext, end < state_.Count());
  enable(kLast, end < state_.Count());
  const bool wide = state_.GetFit() == PreviewState::Fit::kWidth;
  CheckRadioButton(window_, kOnePage, kTwoPages, state_.ShowsTwo() ? kTwoPages : kOnePage);
  CheckRadioButton(window_, kFitPage, kFitWidth, wide ? kFitWidth : kFitPage);
  Text text = preview_.texts.page + Decimal(static_cast<long long>(state_.First() + 1));
  if (state_.Shown() == 2) text += u"-" + Decimal(static_cast<long long>(end));
  text += preview_.texts.of + Decimal(static_cast<long long>(state_.Count()));
  SetWindowTextW(label_, Wide(text));
}

RECT PreviewWindow::CanvasArea() const {
  RECT area = {};
  GetClientRect(canvas_, &area);
  return area;
}

PreviewState::Layout PreviewWindow::Layout() const {
  const RECT area = CanvasArea();
  return state_.In(area.right, area.bottom);
}

void PreviewWindow::OnPaint() {
  PAINTSTRUCT paint;
  const HDC dc = BeginPaint(canvas_, &paint);
  const RECT area = CanvasArea();
  const HDC memory = CreateCompatibleDC(dc);
  const HBITMAP bitmap = CreateCompatibleBitmap(dc, area.right, area.bottom);
  const HGDIOBJ former = SelectObject(memory, bitmap);
  PaintSheets(memory, area);
  BitBlt(dc, 0, 0, area.right, area.bottom, memory, 0, 0, SRCCOPY);
  SelectObject(memory, former);
  DeleteObject(bitmap);
  DeleteDC(memory);
  EndPaint(canvas_, &paint);
}

void PreviewWindow::PaintSheets(HDC dc, const RECT& area) {
  FillRect(dc, &area, GetSysColorBrush(COLOR_APPWORKSPACE));
  const PreviewState::Layout layout = Layout();
  for (const PreviewState::Sheet& sheet : layout.sheets) {
    const int top = sheet.top - scroll_;
    RECT at = {sheet.left, top, sheet.left + sheet.width, top + sheet.height};
    FillRect(dc, &at, static_cast<HBRUSH>(GetStockObject(WHITE_BRUSH)));
    FrameRect(dc, &at, static_cast<HBRUSH>(GetStockObject(BLACK_BRUSH)));
    const int saved = SaveDC(dc);
    IntersectClipRect(dc, at.left + 1, at.top + 1, at.right - 1, at.bottom - 1);
    SetViewportOrgEx(dc, at.left, at.top, nullptr);
    painter_.Draw(dc, preview_.pages.pages[sheet.page], Scale{layout.dpi});
    RestoreDC(dc, saved);
  }
}

void PreviewWindow::Run(const std::function<void()>& reaction) {
  try {
    reaction();
  } catch (...) {
    view_.Fail(std::current_exception());
    open_ = false;
  }
}

}  // namespace trovex::win32
