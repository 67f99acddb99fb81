#include "Ui/Win32/PagePainter.h"

#include <algorithm>

#include "Platform/Win32/Names.h"
#include "Ui/Win32/Colours.h"

namespace trovex::win32 {
namespace {

constexpr Scale kFine = {7200};  // a pixel is a fifth of a twip

// A bitmap as the system takes it: rows from the bottom up, blue first, of whole words.
std::string NativePixels(const Bitmap& bitmap) {
  const auto width = static_cast<std::size_t>(bitmap.width);
  const auto height = static_cast<std::size_t>(bitmap.height);
  const std::size_t stride = (width * 3 + 3) / 4 * 4;
  std::string pixels(stride * height, '\0');
  for (std::size_t y = 0; y < height; ++y) {
    char* row = &pixels[(height - 1 - y) * stride];
    const char* source = &bitmap.pixels[y * width * 3];
    for (std::size_t i = 0; i < width * 3; ++i) row[i] = source[i / 3 * 3 + 2 - i % 3];
  }
  return pixels;
}

}  // namespace

PrintMeasure::PrintMeasure(Fonts& fonts) : fonts_(fonts), dc_(CreateCompatibleDC(nullptr)) {}

PrintMeasure::~PrintMeasure() {
  // No font stays selected: they are deleted elsewhere.
  SelectObject(dc_, GetStockObject(SYSTEM_FONT));
  DeleteDC(dc_);
}

void PrintMeasure::Select(const Font& font) {
  SelectObject(dc_, fonts_.Get(font, kFine));
}

double PrintMeasure::Width(TextView text, const Font& font) {
  Select(font);
  SIZE size = {};
  const Text whole(text);
  GetTextExtentPoint32W(dc_, Wide(whole), static_cast<int>(whole.size()), &size);
  return kFine.Twips(size.cx);
}

FontMeasure PrintMeasure::MeasureOf(const Font& font) {
  Select(font);
  TEXTMETRICW metric = {};
  GetTextMetricsW(dc_, &metric);
  return {kFine.Twips(metric.tmAscent), kFine.Twips(metric.tmHeight + metric.tmExternalLeading)};
}

std::vector<double> PrintMeasure::Ends(const Text& text, const Font& font) {
  Select(font);
  SIZE size = {};
  std::vector<int> ends(text.size());
  GetTextExtentExPointW(dc_, Wide(text), static_cast<int>(text.size()), 0, nullptr, ends.data(),
                        &size);
  std::vector<double> twips(text.size());
  std::transform(ends.begin(), ends.end(), twips.begin(), [](int end) { return kFine.Twips(end); });
  return twips;
}

void PagePainter::Draw(HDC dc, const Page& page, Scale scale) {
  for (const PageImage& image : page.images) Draw(dc, image, scale);
  for (const PageLine& line : page.lines) Draw(dc, line, scale);
  SetBkMode(dc, TRANSPARENT);
  SetTextAlign(dc, TA_LEFT | TA_BASELINE);
  for (const PageText& text : page.texts) {
    Draw(dc, text, Text(page.LettersOf(text)), scale);
  }
}

// Each character stands where the layout has it, whatever the device makes of the font.
void PagePainter::Draw(HDC dc, const PageText& text, const Text& letters, Scale scale) {
  const Font& font = pages_.fonts[text.font];
  const HGDIOBJ former = SelectObject(dc, fonts_.Get(font, scale));
  SetTextColor(dc, NativeColour(text.colour));
  std::vector<int> steps;
  int at = scale.Pixels(text.x);
  for (const double end : measure_.Ends(letters, font)) {
    const int next = scale.Pixels(text.x + end);
    steps.push_back(next - at);
    at = next;
  }
  ExtTextOutW(dc, scale.Pixels(text.x), scale.Pixels(text.baseline), 0, nullptr, Wide(letters),
              static_cast<UINT>(letters.size()), steps.data());
  SelectObject(dc, former);
}

void PagePainter::Draw(HDC dc, const PageLine& line, Scale scale) {
  const int width = std::max(1, scale.Pixels(line.width));
  const HPEN pen = CreatePen(PS_SOLID, width, NativeColour(line.colour));
  const HGDIOBJ former = SelectObject(dc, pen);
  MoveToEx(dc, scale.Pixels(line.x1), scale.Pixels(line.y1), nullptr);
  LineTo(dc, scale.Pixels(line.x2), scale.Pixels(line.y2));
  SelectObject(dc, former);
  DeleteObject(pen);
}

void PagePainter::Draw(HDC dc, const PageImage& image, Scale scale) {
  const Bitmap& bitmap = pages_.bitmaps[image.bitmap];
  const RECT at = scale.Rect({image.x, image.y, image.size.width, image.size.height});
  BITMAPINFO info = {};
  info.bmiHeader.biSize = sizeof info.bmiHeader;
  info.bmiHeader.biWidth = bitmap.width;
  info.bmiHeader.biHeight = bitmap.height;
  info.bmiHeader.biPlanes = 1;
  info.bmiHeader.biBitCount = 24;
  SetStretchBltMode(dc, HALFTONE);
  StretchDIBits(dc, at.left, at.top, at.right - at.left, at.bottom - at.top, 0, 0, bitmap.width,
                bitmap.height, NativePixels(bitmap).data(), &info, DIB_RGB_COLORS, SRCCOPY);
}

}  // namespace trovex::win32
