#include "Platform/Win32/Names.h"
#include "Ui/Win32/ControlWindows.h"
#include "Ui/Win32/FormWindow.h"

namespace trovex::win32 {
namespace {

constexpr double kPicture = 240;  // twips
constexpr double kIndent = 120;   // a level
constexpr double kLineHeight = 270;

// The last level of a path; a root whole.
Text LastLevel(const Text& path) {
  const std::size_t backslash = path.find_last_of(u'\\');
  return backslash == Text::npos || backslash + 1 == path.size() ? path
                                                                 : path.substr(backslash + 1);
}

}  // namespace

DirListWindow::DirListWindow(DirListBox& model, FormWindow& form)
    : NativeControl(model, form), list_(model) {
  Create(L"LISTBOX",
         LBS_NOTIFY | LBS_OWNERDRAWFIXED | LBS_HASSTRINGS | LBS_NOINTEGRALHEIGHT | WS_VSCROLL |
             WS_TABSTOP,
         WS_EX_CLIENTEDGE);
  MirrorProperty(Property::kList);
}

void DirListWindow::MirrorProperty(Property property) {
  if (property == Property::kList) {
    Send(LB_RESETCONTENT);
    // No path yet, nothing to show.
    for (int i = -1 - list_.Depth(); !list_.Path().empty() && i < list_.ListCount(); ++i) {
      const Text level = LastLevel(list_.List(i));
      Send(LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(Wide(level)));
    }
  }
  Send(LB_SETCURSEL, static_cast<WPARAM>(ItemOf(list_.ListIndex())));
}

void DirListWindow::OnCommand(WORD code) {
  const auto item = static_cast<int>(Send(LB_GETCURSEL));
  if (item == LB_ERR) return;
  if (code == LBN_SELCHANGE) Owner().Run([&] { list_.SetListIndex(ModelIndex(item)); });
  if (code == LBN_DBLCLK) Owner().Run([this] { IgnoringErrors([this] { list_.Open(); }); });
}

bool DirListWindow::OnKey(WPARAM key) {
  if (key != VK_RETURN) return false;
  Owner().Run([this] { IgnoringErrors([this] { list_.Open(); }); });
  return true;
}

int DirListWindow::ItemHeight() const {
  return GetScale().Pixels(kLineHeight);
}

void DirListWindow::Rescale() {
  NativeControl::Rescale();
  Send(LB_SETITEMHEIGHT, 0, ItemHeight());
}

void DirListWindow::OnDraw(const DRAWITEMSTRUCT& item) {
  if (item.itemID == static_cast<UINT>(-1)) return;
  const bool selected = (item.itemState & ODS_SELECTED) != 0;
  const int index = ModelIndex(static_cast<int>(item.itemID));
  const Scale scale = GetScale();
  RECT area = item.rcItem;
  FillRect(item.hDC, &area, GetSysColorBrush(selected ? COLOR_HIGHLIGHT : COLOR_WINDOW));
  const int level = std::min(static_cast<int>(item.itemID), list_.Depth() + 1);
  const int size = scale.Pixels(kPicture);
  area.left += scale.Pixels(30 + level * kIndent);
  const HICON icon = GetShared().icons.Get(index < 0 ? u"DossierOuvert" : u"Dossier", size);
  const int top = area.top + (area.bottom - area.top - size) / 2;
  if (icon != nullptr)
    DrawIconEx(item.hDC, area.left, top, icon, size, size, 0, nullptr, DI_NORMAL);
  area.left += size + scale.Pixels(60);
  SetBkMode(item.hDC, TRANSPARENT);
  SetTextColor(item.hDC, GetSysColor(selected ? COLOR_HIGHLIGHTTEXT : COLOR_WINDOWTEXT));
  const Text level_name = LastLevel(list_.List(index));
  DrawTextW(item.hDC, Wide(level_name), -1, &area,
            DT_LEFT | DT_VCENTER | DT_SINGLELINE | DT_NOPREFIX);
  if ((item.itemState & ODS_FOCUS) != 0) DrawFocusRect(item.hDC, &item.rcItem);
}

}  // namespace trovex::win32
