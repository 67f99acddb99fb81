#include "support/Win32/WindowPicture.h"

#include <objbase.h>
#include <objidl.h>

#include <stdexcept>

#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wold-style-cast"
#pragma GCC diagnostic ignored "-Wshadow"
#pragma GCC diagnostic ignored "-Wcast-align"
#pragma GCC diagnostic ignored "-Wpedantic"
#include <gdiplus.h>
#pragma GCC diagnostic pop

namespace trovex::test {
namespace {

constexpr CLSID kPng = {
    0x557CF406, 0x1A04, 0x11D3, {0x9A, 0x73, 0x00, 0x00, 0xF8, 0x1E, 0xF3, 0x2E}};

class Session {
 public:
  Session() {
    const Gdiplus::GdiplusStartupInput input;
    if (Gdiplus::GdiplusStartup(&token_, &input, nullptr) != Gdiplus::Ok)
      throw std::runtime_error("GDI+ does not start");
  }
  ~Session() { Gdiplus::GdiplusShutdown(token_); }
  Session(const Session&) = delete;
  Session& operator=(const Session&) = delete;

 private:
  ULONG_PTR token_ = 0;
};

// A copy of the screen where the window lies; the caller deletes it.
HBITMAP Copy(HWND window) {
  RECT at;
  GetWindowRect(window, &at);
  const int width = at.right - at.left, height = at.bottom - at.top;
  const HDC from = GetDC(nullptr);
  const HDC to = CreateCompatibleDC(from);
  const HBITMAP copy = CreateCompatibleBitmap(from, width, height);
  const HGDIOBJ before = SelectObject(to, copy);
  BitBlt(to, 0, 0, width, height, from, at.left, at.top, SRCCOPY);
  SelectObject(to, before);
  DeleteDC(to);
  ReleaseDC(nullptr, from);
  return copy;
}

}  // namespace

void WritePicture(HWND window, const std::filesystem::path& file) {
  const Session session;
  std::filesystem::create_directories(file.parent_path());
  const HBITMAP copy = Copy(window);
  Gdiplus::Status written = Gdiplus::GenericError;
  {
    Gdiplus::Bitmap picture(copy, nullptr);
    written = picture.Save(file.c_str(), &kPng, nullptr);
  }
  DeleteObject(copy);
  if (written != Gdiplus::Ok) throw std::runtime_error("cannot write " + file.string());
}

}  // namespace trovex::test
