#include "Platform/Win32/Names.h"
#include "Ui/Win32/ControlWindows.h"
#include "Ui/Win32/FormWindow.h"

namespace trovex::win32 {

ListBoxWindow::ListBoxWindow(ListBox& model, FormWindow& form)
    : NativeControl(model, form), list_(model) {
  Create(L"LISTBOX", LBS_NOTIFY | LBS_NOINTEGRALHEIGHT | WS_VSCROLL | WS_TABSTOP, WS_EX_CLIENTEDGE);
  Flush();
}

void ListBoxWindow::MirrorProperty(Property) {
  stale_ = true;
  Owner().RequestFlush();
}

void ListBoxWindow::Flush() {
  if (!stale_) return;
  stale_ = false;
  Send(WM_SETREDRAW, FALSE);
  Send(LB_RESETCONTENT);
  for (int i = 0; i < list_.ListCount(); ++i) {
    Send(LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(Wide(list_.List(i))));
  }
  Send(LB_SETCURSEL, static_cast<WPARAM>(list_.ListIndex()));
  Send(WM_SETREDRAW, TRUE);
  InvalidateRect(Handle(), nullptr, TRUE);
}

void ListBoxWindow::OnCommand(WORD code) {
  const auto selected = static_cast<int>(Send(LB_GETCURSEL));
  if (code == LBN_SELCHANGE && selected != LB_ERR) {
    Owner().Run([this, selected] {
      if (selected == list_.ListIndex()) return Raise(list_.on_click);
      list_.SetListIndex(selected);
    });
  } else if (code == LBN_DBLCLK) {
    Owner().Run(list_.on_dbl_click);
  }
}

bool ListBoxWindow::OnKey(WPARAM key) {
  if (key != VK_RETURN || list_.ListIndex() < 0) return false;
  Owner().Run(list_.on_dbl_click);
  return true;
}

}  // namespace trovex::win32
