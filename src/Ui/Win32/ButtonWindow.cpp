#include "Ui/Win32/ControlWindows.h"

#include "Platform/Win32/Names.h"
#include "Ui/Win32/FormWindow.h"

namespace trovex::win32 {
namespace {

constexpr double kPictureSize = 480;       // twips, over a caption
constexpr double kSmallPictureSize = 240;  // on a button too low for that
constexpr double kLowButton = 540;
constexpr double kGap = 45;

}  // namespace

ButtonWindow::ButtonWindow(Button& model, FormWindow& form)
    : NativeControl(model, form), button_(model) {
  Create(L"BUTTON", BS_OWNERDRAW | WS_TABSTOP);
  MirrorProperty(Property::kText);
}

void ButtonWindow::MirrorProperty(Property) {
  SetWindowTextW(Handle(), Wide(button_.Caption()));
  InvalidateRect(Handle(), nullptr, TRUE);
}

void ButtonWindow::OnCommand(WORD code) {
  if (code == BN_CLICKED) Owner().Run([this] { button_.Press(); });
}

bool ButtonWindow::OnKey(WPARAM key) {
  if (key != VK_RETURN) return false;
  Owner().Run([this] { button_.Press(); });
  return true;
}

void ButtonWindow::OnDraw(const DRAWITEMSTRUCT& item) {
  RECT area = item.rcItem;
  const bool pressed = (item.itemState & ODS_SELECTED) != 0;
  FillRect(item.hDC, &area, GetSysColorBrush(COLOR_BTNFACE));
  if ((item.itemState & ODS_FOCUS) != 0) {
    // The highlight: a dark frame around the button.
    FrameRect(item.hDC, &area, GetSysColorBrush(COLOR_WINDOWFRAME));
    InflateRect(&area, -1, -1);
  }
  DrawEdge(item.hDC, &area, pressed ? EDGE_SUNKEN : EDGE_RAISED, BF_RECT);
  InflateRect(&area, -2, -2);
  if (pressed) OffsetRect(&area, 1, 1);
  DrawFace(item.hDC, area, (item.itemState & ODS_DISABLED) != 0);
}

void ButtonWindow::DrawFace(HDC dc, const RECT& area, bool disabled) {
  const int caption = button_.Caption().empty() ? 0 : CaptionHeight(dc);
  const Scale scale = GetScale();
  const int size = scale.Pixels(button_.Height() < kLowButton ? kSmallPictureSize : kPictureSize);
  const int gap = caption > 0 && !button_.Picture().empty() ? scale.Pixels(kGap) : 0;
  const int picture = button_.Picture().empty() ? 0 : size;
  int top = area.top + (area.bottom - area.top - picture - gap - caption) / 2;
  if (picture > 0) {
    const int left = area.left + (area.right - area.left - size) / 2;
    DrawPicture(dc, left, top, size, disabled);
    top += size + gap;
  }
  RECT text = {area.left, top, area.right, area.bottom};
  DrawCaption(dc, text, disabled);
}

void ButtonWindow::DrawPicture(HDC dc, int left, int top, int size, bool disabled) {
  const HICON icon = GetShared().icons.Get(button_.Picture(), size);
  if (icon == nullptr) return;
  DrawStateW(dc, nullptr, nullptr, reinterpret_cast<LPARAM>(icon), 0, left, top, size, size,
             DST_ICON | (disabled ? DSS_DISABLED : DSS_NORMAL));
}

void ButtonWindow::DrawCaption(HDC dc, RECT area, bool disabled) {
  SelectObject(dc, GetShared().fonts.Get(ModelFont(), GetScale()));
  SetBkMode(dc, TRANSPARENT);
  constexpr UINT kFormat = DT_CENTER | DT_TOP | DT_SINGLELINE | DT_NOPREFIX;
  if (disabled) {
    // An engraved caption: its light edge first.
    RECT light = area;
    OffsetRect(&light, 1, 1);
    SetTextColor(dc, GetSysColor(COLOR_BTNHIGHLIGHT));
    DrawTextW(dc, Wide(button_.Caption()), -1, &light, kFormat);
  }
  SetTextColor(dc, GetSysColor(disabled ? COLOR_GRAYTEXT : COLOR_BTNTEXT));
  DrawTextW(dc, Wide(button_.Caption()), -1, &area, kFormat);
}

int ButtonWindow::CaptionHeight(HDC dc) {
  SelectObject(dc, GetShared().fonts.Get(ModelFont(), GetScale()));
  TEXTMETRICW metrics;
  GetTextMetricsW(dc, &metrics);
  return metrics.tmHeight;
}

}  // namespace trovex::win32
