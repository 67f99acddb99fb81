#include "Platform/Win32/Names.h"
#include "Ui/Win32/ControlWindows.h"
#include "Ui/Win32/FormWindow.h"

namespace trovex::win32 {
namespace {

constexpr double kPicture = 240;  // twips

}  // namespace

TabWindow::TabWindow(TabControl& model, FormWindow& form)
    : NativeControl(model, form), tabs_(model) {
  Create(WC_TABCONTROLW, WS_TABSTOP);
  for (std::size_t i = 0; i < model.Captions().size(); ++i) {
    TCITEMW item = {};
    item.mask = TCIF_TEXT | TCIF_IMAGE;
    item.pszText = const_cast<wchar_t*>(Wide(model.Captions()[i]));
    item.iImage = static_cast<int>(i);
    Send(TCM_INSERTITEMW, i, reinterpret_cast<LPARAM>(&item));
  }
  MirrorProperty(Property::kSelection);
}

TabWindow::~TabWindow() {
  if (pictures_ != nullptr) ImageList_Destroy(pictures_);
}

void TabWindow::LoadPictures() {
  const int size = GetScale().Pixels(kPicture);
  if (pictures_ != nullptr) ImageList_Destroy(pictures_);
  pictures_ = ImageList_Create(size, size, ILC_COLOR32 | ILC_MASK, 3, 1);
  for (const Text& name : tabs_.Pictures()) {
    const HICON icon = GetShared().icons.Get(name, size);
    if (icon != nullptr) ImageList_ReplaceIcon(pictures_, -1, icon);
  }
  Send(TCM_SETIMAGELIST, 0, reinterpret_cast<LPARAM>(pictures_));
}

void TabWindow::Rescale() {
  NativeControl::Rescale();
  LoadPictures();
}

void TabWindow::MirrorProperty(Property property) {
  if (property != Property::kSelection) return;
  Send(TCM_SETCURSEL, static_cast<WPARAM>(tabs_.Tab()));
  for (const auto& control : Owner().Model().Controls()) {
    NativeControl* window = Owner().Of(*control);
    if (control->Container() == &tabs_ && window != nullptr) window->Mirror(Property::kVisible);
  }
}

bool TabWindow::OnNotify(NMHDR& header, LRESULT&) {
  if (header.code != TCN_SELCHANGE || Mirroring()) return false;
  const auto tab = static_cast<int>(Send(TCM_GETCURSEL));
  Owner().Run([&] { tabs_.SetTab(tab); });
  return true;
}

}  // namespace trovex::win32
