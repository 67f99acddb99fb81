#include "Platform/Win32/Names.h"
#include "Ui/Win32/ControlWindows.h"
#include "Ui/Win32/FormWindow.h"

namespace trovex::win32 {
namespace {

constexpr double kMargin = 60;  // twips, between frame and text

}  // namespace

PanelWindow::PanelWindow(Panel& model, FormWindow& form)
    : NativeControl(model, form), panel_(model) {
  Create(L"STATIC", SS_OWNERDRAW | SS_NOTIFY);
  MirrorProperty(Property::kText);
}

void PanelWindow::MirrorProperty(Property) {
  SetWindowTextW(Handle(), Wide(panel_.Caption()));
  InvalidateRect(Handle(), nullptr, TRUE);
}

void PanelWindow::OnDraw(const DRAWITEMSTRUCT& item) {
  RECT area = item.rcItem;
  FillRect(item.hDC, &area, OnSurface(item.hDC, panel_.ForeColor()));
  DrawEdge(item.hDC, &area, BDR_SUNKENOUTER, BF_RECT);
  InflateRect(&area, -GetScale().Pixels(kMargin), 0);
  SelectObject(item.hDC, GetShared().fonts.Get(ModelFont(), GetScale()));
  DrawTextW(item.hDC, Wide(panel_.Caption()), -1, &area,
            DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX | DT_END_ELLIPSIS);
}

}  // namespace trovex::win32
