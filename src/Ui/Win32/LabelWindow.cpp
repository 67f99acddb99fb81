#include <algorithm>

#include "Platform/Win32/Names.h"
#include "Ui/Win32/ControlWindows.h"
#include "Ui/Win32/FormWindow.h"
#include "Ui/Win32/Surface.h"

namespace trovex::win32 {
namespace {

constexpr int kGap = 3;    // pixels to a neighbour
constexpr int kSlack = 2;  // a text that fits to the pixel is wrapped all the same

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

bool SideBySide(const Place& a, const Place& b) {
  return a.top < b.top + b.height && b.top < a.top + a.height;
}

// Twips from the label's right edge to what stands next beside it.
double RoomToTheRight(const Control& label) {
  const double right = label.Left() + label.Width();
  double room = label.Parent()->ScaleWidth() - right;
  for (const auto& other : label.Parent()->Controls()) {
    const bool beside = other->Container() == label.Container() && other->Page() == label.Page() &&
                        other->Left() >= right && SideBySide(other->GetPlace(), label.GetPlace());
    if (beside) room = std::min(room, other->Left() - right);
  }
  return std::max(0.0, room);
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
// the left where it is aligned to the right or has a neighbour there.
RECT LabelWindow::Rectangle() const {
  RECT at = NativeControl::Rectangle();
  const HFONT font = GetShared().fonts.Get(ModelFont(), GetScale());
  const int needed = WidthOf(label_.Caption(), font) + kSlack;
  const int missing = std::max(0, needed - static_cast<int>(at.right - at.left));
  const bool to_the_left = label_.GetAlignment() == Alignment::kRight;
  const int room = to_the_left ? 0 : GetScale().Pixels(RoomToTheRight(label_)) - kGap;
  const int rightwards = std::clamp(room, 0, missing);
  at.right += rightwards;
  at.left -= missing - rightwards;
  return at;
}

HBRUSH LabelWindow::OnColour(HDC dc) {
  const HBRUSH plain = OnSurface(dc, label_.ForeColor());
  const RECT at = Rectangle();
  if (!CoversPicture(Owner().Model(), at, GetScale(), GetShared())) return plain;
  // The text stands on the picture: what the form shows here is drawn first, at its own place.
  POINT origin;
  SetViewportOrgEx(dc, -at.left, -at.top, &origin);
  PaintSurface(dc, Owner().Model(), GetScale(), GetShared());
  SetViewportOrgEx(dc, origin.x, origin.y, nullptr);
  return static_cast<HBRUSH>(GetStockObject(HOLLOW_BRUSH));
}

}  // namespace trovex::win32
