#include "Platform/Win32/Names.h"
#include "Ui/Win32/ControlWindows.h"
#include "Ui/Win32/FormWindow.h"

namespace trovex::win32 {
namespace {

DWORD StyleOf(Alignment alignment) {
  switch (alignment) {
    case Alignment::kLeft:
      break;
    case Alignment::kRight:
      return SS_RIGHT;
    case Alignment::kCentre:
      return SS_CENTER;
  }
  return SS_LEFT;
}

}  // namespace

LabelWindow::LabelWindow(Captioned& model, FormWindow& form)
    : NativeControl(model, form), label_(model) {
  Create(L"STATIC", StyleOf(model.GetAlignment()) | SS_NOPREFIX | SS_NOTIFY);
  MirrorProperty(Property::kText);
}

void LabelWindow::MirrorProperty(Property) {
  SetWindowTextW(Handle(), Wide(label_.Caption()));
  InvalidateRect(Handle(), nullptr, TRUE);
}

HBRUSH LabelWindow::OnColour(HDC dc) {
  SetBkMode(dc, TRANSPARENT);
  SetTextColor(dc, NativeColour(label_.ForeColor()));
  return Owner().Background();
}

}  // namespace trovex::win32
