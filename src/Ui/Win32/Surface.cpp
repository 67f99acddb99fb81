#include "Ui/Win32/Surface.h"

#include "Platform/Win32/Names.h"
#include "Ui/Label.h"
#include "Ui/Picture.h"

namespace trovex::win32 {
namespace {

constexpr double kCaptionIndent = 120;  // twips, from a frame's left edge

void PaintShape(HDC dc, const Control& shape, const RECT& at, const Shared& shared) {
  const HBRUSH brush = CreateSolidBrush(shared.colours.Filling(shape.BackColor()));
  FillRect(dc, &at, brush);
  DeleteObject(brush);
}

void PaintBitmap(HDC dc, HBITMAP bitmap, const RECT& at) {
  BITMAP drawn;
  if (bitmap == nullptr || GetObjectW(bitmap, sizeof drawn, &drawn) == 0) return;
  const HDC source = CreateCompatibleDC(dc);
  const HGDIOBJ before = SelectObject(source, bitmap);
  SetStretchBltMode(dc, HALFTONE);
  SetBrushOrgEx(dc, 0, 0, nullptr);
  StretchBlt(dc, at.left, at.top, at.right - at.left, at.bottom - at.top, source, 0, 0,
             drawn.bmWidth, drawn.bmHeight, SRCCOPY);
  SelectObject(source, before);
  DeleteDC(source);
}

void PaintImage(HDC dc, const Image& image, const RECT& at, Shared& shared) {
  const Picture& picture = image.GetPicture();
  if (picture.source == Picture::Source::kBitmap) {
    // A picture behind texts makes them hard to read.
    if (shared.colours.HighContrast()) return;
    return PaintBitmap(dc, shared.bitmaps.Get(picture.name), at);
  }
  const int size = at.bottom - at.top;
  const OwnedIcon icon = LoadPicture(picture, size);
  if (icon.Get() == nullptr) return;
  DrawIconEx(dc, at.left, at.top, icon.Get(), size, size, 0, nullptr, DI_NORMAL);
}

// An etched line around, interrupted by the caption.
void PaintFrame(HDC dc, const Frame& frame, RECT at, Scale scale, Shared& shared) {
  const Text& caption = frame.Caption();
  const HGDIOBJ before = SelectObject(dc, shared.fonts.Get(frame.GetFont(), scale));
  SIZE size = {};
  GetTextExtentPoint32W(dc, Wide(caption), static_cast<int>(caption.size()), &size);
  const int left = at.left + scale.Pixels(kCaptionIndent), top = at.top;
  at.top += size.cy / 2;
  const int saved = SaveDC(dc);
  ExcludeClipRect(dc, left, top, left + size.cx, top + size.cy);
  DrawEdge(dc, &at, EDGE_ETCHED, BF_RECT);
  RestoreDC(dc, saved);
  SetBkMode(dc, TRANSPARENT);
  SetTextColor(dc, shared.colours.SurfaceText(frame.ForeColor(), frame.Parent()->BackColor()));
  TextOutW(dc, left, top, Wide(caption), static_cast<int>(caption.size()));
  SelectObject(dc, before);
}

}  // namespace

void PaintSurface(HDC dc, const Form& form, Scale scale, Shared& shared) {
  for (const auto& control : form.Controls()) {
    if (!control->Visible()) continue;
    const RECT at = scale.Rect(control->GetPlace());
    switch (control->Kind()) {
      case ControlKind::kShape:
        PaintShape(dc, *control, at, shared);
        break;
      case ControlKind::kImage:
        PaintImage(dc, static_cast<const Image&>(*control), at, shared);
        break;
      case ControlKind::kFrame:
        PaintFrame(dc, static_cast<const Frame&>(*control), at, scale, shared);
        break;
      default:
        break;
    }
  }
}

bool CoversPicture(const Form& form, const RECT& at, Scale scale, const Shared& shared) {
  if (shared.colours.HighContrast()) return false;
  for (const auto& control : form.Controls()) {
    if (control->Kind() != ControlKind::kImage || !control->Visible()) continue;
    const RECT picture = scale.Rect(control->GetPlace());
    RECT common;
    if (IntersectRect(&common, &picture, &at)) return true;
  }
  return false;
}

}  // namespace trovex::win32
