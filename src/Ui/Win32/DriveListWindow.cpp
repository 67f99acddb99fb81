#include "Platform/Platform.h"
#include "Platform/Win32/Names.h"
#include "Ui/Win32/ControlWindows.h"
#include "Ui/Win32/FormWindow.h"

namespace trovex::win32 {
namespace {

constexpr double kPicture = 240;  // twips
constexpr double kLineHeight = 255;
constexpr double kDropHeight = 3000;

// Picture of a drive's type.
const char16_t* PictureOf(const Text& entry) {
  if (entry.empty()) return u"LecteurFixe";
  switch (CurrentPlatform().GetDriveType({ToUpper(entry[0]), u':', u'\\'})) {
    case DriveType::kRemovable:
      return u"LecteurAmovible";
    case DriveType::kRemote:
      return u"LecteurReseau";
    case DriveType::kCdRom:
      return u"LecteurCd";
    case DriveType::kRamDisk:
      return u"LecteurRam";
    case DriveType::kUnknown:
    case DriveType::kNoRoot:
    case DriveType::kFixed:
      break;
  }
  return u"LecteurFixe";
}

}  // namespace

DriveListWindow::DriveListWindow(DriveListBox& model, FormWindow& form)
    : NativeControl(model, form), list_(model) {
  Create(L"COMBOBOX",
         CBS_DROPDOWNLIST | CBS_OWNERDRAWFIXED | CBS_HASSTRINGS | WS_VSCROLL | WS_TABSTOP);
  MirrorProperty(Property::kList);
}

// The window of a drop-down list is as high as it is when dropped.
RECT DriveListWindow::Rectangle() const {
  RECT at = NativeControl::Rectangle();
  at.bottom = at.top + GetScale().Pixels(kDropHeight);
  return at;
}

void DriveListWindow::Rescale() {
  NativeControl::Rescale();
  const int height = GetScale().Pixels(kLineHeight);
  Send(CB_SETITEMHEIGHT, 0, height);
  // The closed box: the model's height less its frame.
  Send(CB_SETITEMHEIGHT, static_cast<WPARAM>(-1), GetScale().Pixels(list_.Height()) - 6);
}

void DriveListWindow::MirrorProperty(Property property) {
  if (property == Property::kList) {
    Send(CB_RESETCONTENT);
    for (int i = 0; i < list_.ListCount(); ++i) {
      Send(CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(Wide(list_.List(i))));
    }
  }
  Send(CB_SETCURSEL, static_cast<WPARAM>(list_.ListIndex()));
}

// The system reports a change before or after the list rolls up. That the user took the entry which
// was selected already is told by the rolling up alone.
void DriveListWindow::OnCommand(WORD code) {
  if (Mirroring()) return;
  const auto selected = static_cast<int>(Send(CB_GETCURSEL));
  switch (code) {
    case CBN_DROPDOWN:
      taken_ = false;
      return Owner().Run(list_.on_drop_down);
    case CBN_SELENDOK:
      taken_ = true;
      return;
    case CBN_SELCHANGE:
      if (selected == CB_ERR || selected == list_.ListIndex()) return;
      taken_ = false;
      return Owner().Run([&] { list_.Choose(selected); });
    case CBN_CLOSEUP:
      if (!taken_ || selected == CB_ERR || selected != list_.ListIndex()) return;
      taken_ = false;
      return Owner().Run([&] { list_.Choose(selected); });
    default:
      return;
  }
}

void DriveListWindow::OnDraw(const DRAWITEMSTRUCT& item) {
  const bool selected = (item.itemState & ODS_SELECTED) != 0;
  RECT area = item.rcItem;
  FillRect(item.hDC, &area, GetSysColorBrush(selected ? COLOR_HIGHLIGHT : COLOR_WINDOW));
  if (item.itemID == static_cast<UINT>(-1)) return;
  const Text& entry = list_.List(static_cast<int>(item.itemID));
  const Scale scale = GetScale();
  const int size = scale.Pixels(kPicture);
  const HICON icon = GetShared().icons.Get(PictureOf(entry), size);
  area.left += scale.Pixels(30);
  const int top = area.top + (area.bottom - area.top - size) / 2;
  if (icon != nullptr)
    DrawIconEx(item.hDC, area.left, top, icon, size, size, 0, nullptr, DI_NORMAL);
  area.left += size + scale.Pixels(60);
  SetBkMode(item.hDC, TRANSPARENT);
  SetTextColor(item.hDC, GetSysColor(selected ? COLOR_HIGHLIGHTTEXT : COLOR_WINDOWTEXT));
  DrawTextW(item.hDC, Wide(entry), -1, &area, DT_LEFT | DT_VCENTER | DT_SINGLELINE | DT_NOPREFIX);
}

}  // namespace trovex::win32
