#include "Platform/Win32/Names.h"
#include "Ui/Win32/ControlWindows.h"
#include "Ui/Win32/FormWindow.h"

namespace trovex::win32 {

OptionWindow::OptionWindow(OptionButton& model, FormWindow& form)
    : NativeControl(model, form), option_(model) {
  Create(L"BUTTON", BS_RADIOBUTTON | WS_TABSTOP);
  MirrorProperty(Property::kText);
}

void OptionWindow::MirrorProperty(Property property) {
  if (property != Property::kSelection) SetWindowTextW(Handle(), Wide(option_.Caption()));
  Send(BM_SETCHECK, option_.Value() ? BST_CHECKED : BST_UNCHECKED);
}

void OptionWindow::OnCommand(WORD code) {
  if (code != BN_CLICKED || Mirroring()) return;
  // A click on the option already chosen is a click all the same.
  Owner().Run([this] {
    if (option_.Value()) {
      Raise(option_.on_click);
    } else {
      option_.SetValue(true);
    }
  });
}

HBRUSH OptionWindow::OnColour(HDC dc) {
  SetBkMode(dc, TRANSPARENT);
  return Owner().Background();
}

}  // namespace trovex::win32
