#include "Ui/Win32/ControlWindows.h"
#include "Ui/Win32/FormWindow.h"

namespace trovex::win32 {
namespace {

constexpr double kIconSize = 480;  // twips

}  // namespace

PictureWindow::PictureWindow(PictureBox& model, FormWindow& form)
    : NativeControl(model, form), box_(model) {
  Create(L"STATIC", SS_OWNERDRAW | SS_NOTIFY);
  MirrorProperty(Property::kPicture);
}

void PictureWindow::MirrorProperty(Property) {
  icon_ = LoadPicture(box_.GetPicture(), GetScale().Pixels(kIconSize));
  InvalidateRect(Handle(), nullptr, TRUE);
}

void PictureWindow::OnDraw(const DRAWITEMSTRUCT& item) {
  // A colour of its own is what it is there to show.
  const bool forms = box_.BackColor() == Owner().Model().BackColor();
  const Colours& colours = GetShared().colours;
  const HBRUSH brush =
      CreateSolidBrush(forms ? colours.Surface(box_.BackColor()) : NativeColour(box_.BackColor()));
  FillRect(item.hDC, &item.rcItem, brush);
  DeleteObject(brush);
  if (icon_.Get() == nullptr) return;
  const int size = GetScale().Pixels(kIconSize);
  DrawIconEx(item.hDC, 0, 0, icon_.Get(), size, size, 0, nullptr, DI_NORMAL);
}

}  // namespace trovex::win32
