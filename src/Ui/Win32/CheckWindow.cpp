#include "Platform/Win32/Names.h"
#include "Ui/Win32/ControlWindows.h"
#include "Ui/Win32/FormWindow.h"

namespace trovex::win32 {

CheckWindow::CheckWindow(CheckBox& model, FormWindow& form)
    : NativeControl(model, form), box_(model) {
  Create(L"BUTTON", BS_CHECKBOX | WS_TABSTOP);
  MirrorProperty(Property::kText);
}

void CheckWindow::MirrorProperty(Property property) {
  if (property != Property::kSelection) SetWindowTextW(Handle(), Wide(box_.Caption()));
  Send(BM_SETCHECK, box_.Value() ? BST_CHECKED : BST_UNCHECKED);
}

void CheckWindow::OnCommand(WORD code) {
  if (code == BN_CLICKED) Owner().Run([this] { box_.SetValue(!box_.Value()); });
}

HBRUSH CheckWindow::OnColour(HDC dc) {
  return OnSurface(dc, box_.ForeColor());
}

}  // namespace trovex::win32
