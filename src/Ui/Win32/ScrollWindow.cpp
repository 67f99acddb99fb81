#include "Ui/Win32/ControlWindows.h"
#include "Ui/Win32/FormWindow.h"

namespace trovex::win32 {
namespace {

constexpr int kPage = 16;

}  // namespace

ScrollWindow::ScrollWindow(ScrollBar& model, FormWindow& form)
    : NativeControl(model, form), bar_(model) {
  Create(L"SCROLLBAR", SBS_HORZ | WS_TABSTOP);
  MirrorProperty(Property::kOther);
}

void ScrollWindow::MirrorProperty(Property) {
  SCROLLINFO info = {};
  info.cbSize = sizeof info;
  info.fMask = SIF_RANGE | SIF_POS;
  info.nMin = bar_.Min();
  info.nMax = bar_.Max();
  info.nPos = bar_.Value();
  SetScrollInfo(Handle(), SB_CTL, &info, TRUE);
}

void ScrollWindow::OnScroll(WORD code) {
  SCROLLINFO info = {};
  info.cbSize = sizeof info;
  info.fMask = SIF_TRACKPOS;
  GetScrollInfo(Handle(), SB_CTL, &info);
  const int value = bar_.Value();
  Owner().Run([&] {
    switch (code) {
      case SB_LINELEFT:
        return bar_.SetValue(value - 1);
      case SB_LINERIGHT:
        return bar_.SetValue(value + 1);
      case SB_PAGELEFT:
        return bar_.SetValue(value - kPage);
      case SB_PAGERIGHT:
        return bar_.SetValue(value + kPage);
      case SB_LEFT:
        return bar_.SetValue(bar_.Min());
      case SB_RIGHT:
        return bar_.SetValue(bar_.Max());
      case SB_THUMBTRACK:
        return bar_.Drag(info.nTrackPos);
      default:
        return;
    }
  });
}

}  // namespace trovex::win32
