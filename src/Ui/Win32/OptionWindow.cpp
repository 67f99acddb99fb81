#include "Platform/Win32/Names.h"
#include "Ui/Win32/ControlWindows.h"
#include "Ui/Win32/FormWindow.h"

namespace trovex::win32 {
namespace {

constexpr UINT kDontClick = 0x00F8;  // BM_SETDONTCLICK, from Windows Vista on

}  // namespace

OptionWindow::OptionWindow(OptionButton& model, FormWindow& form)
    : NativeControl(model, form), option_(model) {
  Create(L"BUTTON", BS_RADIOBUTTON | WS_TABSTOP);
  Send(kDontClick, TRUE);
  MirrorProperty(Property::kText);
}

void OptionWindow::MirrorProperty(Property property) {
  if (property != Property::kSelection) SetWindowTextW(Handle(), Wide(option_.Caption()));
  Send(BM_SETCHECK, option_.Value() ? BST_CHECKED : BST_UNCHECKED);
}

// Systems that cannot be told otherwise report a click when the option gets the focus.
void OptionWindow::OnCommand(WORD code) {
  if (code == BN_CLICKED && !Mirroring() && !GettingFocus()) Choose();
}

// A click on the option already chosen is a click all the same.
void OptionWindow::Choose() {
  Owner().Run([this] {
    if (option_.Value()) {
      Raise(option_.on_click);
    } else {
      option_.SetValue(true);
    }
  });
}

bool OptionWindow::OnKey(WPARAM key) {
  const bool forwards = key == VK_DOWN || key == VK_RIGHT;
  if (!forwards && key != VK_UP && key != VK_LEFT) return false;
  auto* next = static_cast<OptionWindow*>(Owner().NextOption(*this, forwards));
  if (next == this) return true;
  SetFocus(next->Handle());
  next->Choose();
  return true;
}

HBRUSH OptionWindow::OnColour(HDC dc) {
  return OnSurface(dc, option_.ForeColor());
}

}  // namespace trovex::win32
