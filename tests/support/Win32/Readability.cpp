#include "support/Win32/Readability.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <map>
#include <vector>

namespace trovex::test {
namespace {

// The client area's pixels as the screen shows them.
std::vector<std::uint32_t> PixelsOf(HWND window) {
  RECT client;
  GetClientRect(window, &client);
  std::vector<std::uint32_t> pixels(static_cast<std::size_t>(client.right) *
                                    static_cast<std::size_t>(client.bottom));
  if (pixels.empty()) return pixels;
  const HDC from = GetDC(window);
  const HDC to = CreateCompatibleDC(from);
  const HBITMAP copy = CreateCompatibleBitmap(from, client.right, client.bottom);
  const HGDIOBJ before = SelectObject(to, copy);
  BitBlt(to, 0, 0, client.right, client.bottom, from, 0, 0, SRCCOPY);
  SelectObject(to, before);
  BITMAPINFO info = {};
  info.bmiHeader.biSize = sizeof info.bmiHeader;
  info.bmiHeader.biWidth = client.right;
  info.bmiHeader.biHeight = client.bottom;
  info.bmiHeader.biPlanes = 1;
  info.bmiHeader.biBitCount = 32;
  GetDIBits(to, copy, 0, static_cast<UINT>(client.bottom), pixels.data(), &info, DIB_RGB_COLORS);
  DeleteObject(copy);
  DeleteDC(to);
  ReleaseDC(window, from);
  return pixels;
}

double Linear(std::uint32_t channel) {
  const double value = channel / 255.0;
  return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
}

double Luminance(std::uint32_t pixel) {
  return 0.2126 * Linear(pixel >> 16 & 0xFF) + 0.7152 * Linear(pixel >> 8 & 0xFF) +
         0.0722 * Linear(pixel & 0xFF);
}

}  // namespace

double Contrast(HWND window, double* background) {
  std::map<std::uint32_t, int> counts;
  for (const std::uint32_t pixel : PixelsOf(window)) ++counts[pixel & 0xFFFFFF];
  if (counts.empty()) return 1;
  const auto most =
      std::max_element(counts.begin(), counts.end(),
                       [](const auto& a, const auto& b) { return a.second < b.second; });
  const double ground = Luminance(most->first);
  if (background != nullptr) *background = ground;
  double best = 1;
  for (const auto& [pixel, count] : counts) {
    const double other = Luminance(pixel);
    best = std::max(best, (std::max(ground, other) + 0.05) / (std::min(ground, other) + 0.05));
  }
  return best;
}

}  // namespace trovex::test
