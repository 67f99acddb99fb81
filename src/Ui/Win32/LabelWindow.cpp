#include <algorithm>

#include "Platform/Win32/Names.h"
#include "Ui/Win32/ControlWindows.h"
#include "Ui/Win32/FormWindow.h"
#include "Ui/Win32/Surface.h"

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

// Width of a line of text in pixels.
int WidthOf(const Text& text, HFONT font) {
  const HDC dc = GetDC(nullptr);
  const HGDIOBJ before = SelectObject(dc, font);
  SIZE size = {};
  GetTextExtentPoint32W(dc, Wide(text), static_cast<int>(text.size()), &size);
  SelectObject(dc, before);
  ReleaseDC(nullptr, dc);
  return size.cx;
}

}  // namespace

LabelWindow::LabelWindow(Label& model, FormWindow& form)
    : NativeControl(model, form), label_(model) {
  Create(L"STATIC", StyleOf(model.GetAlignment()) | SS_NOPREFIX | SS_NOTIFY);
  MirrorProperty(Property::kText);
}

void LabelWindow::MirrorProperty(Property) {
  SetWindowTextW(Handle(), Wide(label_.Caption()));
  Rescale();
  InvalidateRect(Handle(), nullptr, TRUE);
}

// The place of a one-line label was measured with another font: a wider text gets what it needs, to
// the left where it is aligned to the right.
RECT LabelWindow::Rectangle() const {
  RECT at = NativeControl::Rectangle();
  const int needed = WidthOf(label_.Caption(), GetShared().fonts.Get(ModelFont(), GetScale()));
  const int missing = std::max(0, needed - static_cast<int>(at.right - at.left));
  if (label_.GetAlignment() == Alignment::kRight) {
    at.left -= missing;
  } else {
    at.right += missing;
  }
  return at;
}

HBRUSH LabelWindow::OnColour(HDC dc) {
  SetBkMode(dc, TRANSPARENT);
  SetTextColor(dc, NativeColour(label_.ForeColor()));
  const RECT at = Rectangle();
  if (!CoversPicture(Owner().Model(), at, GetScale())) return Owner().Background();
  // The text stands on the picture: what the form shows here is drawn first, at its own place.
  POINT origin;
  SetViewportOrgEx(dc, -at.left, -at.top, &origin);
  PaintSurface(dc, Owner().Model(), GetScale(), GetShared());
  SetViewportOrgEx(dc, origin.x, origin.y, nullptr);
  return static_cast<HBRUSH>(GetStockObject(HOLLOW_BRUSH));
}

}  // namespace trovex::win32
