#include "Ui/Win32/Pictures.h"

#include "Platform/Platform.h"
#include "Platform/Records/IconResource.h"
#include "Platform/Win32/Names.h"
#include "Platform/Win32/Redirection.h"
#include "Platform/Win32/ShortName.h"

namespace trovex::win32 {
namespace {

HICON FromResource(const Text& name, int pixels) {
  return static_cast<HICON>(LoadImageW(GetModuleHandleW(nullptr), Wide(name), IMAGE_ICON, pixels,
                                       pixels, LR_DEFAULTCOLOR));
}

HICON FromFile(const Text& name, int pixels) {
  const Unredirected unredirected;
  const ShortName file(name);
  const HANDLE icon =
      LoadImageW(nullptr, Wide(file.Get()), IMAGE_ICON, pixels, pixels, LR_LOADFROMFILE);
  return static_cast<HICON>(icon);
}

HICON FromInside(const Text& name, int index) {
  const Unredirected unredirected;
  HICON large = nullptr;
  const ShortName file(name);
  ExtractIconExW(Wide(file.Get()), index, &large, nullptr, 1);
  return large;
}

// From a file that only the program itself can read.
HICON FromImage(const Text& name, int pixels) {
  constexpr DWORD kForm = 0x00030000;  // that of icons since Windows 3.0
  const auto source = CurrentPlatform().OpenSource(name);
  std::string image = source ? records::IconImage(*source, pixels) : std::string();
  if (image.empty()) return nullptr;
  return CreateIconFromResourceEx(reinterpret_cast<BYTE*>(image.data()),
                                  static_cast<DWORD>(image.size()), TRUE, kForm, pixels, pixels,
                                  LR_DEFAULTCOLOR);
}

bool IsOfFile(const Picture& picture) {
  return picture.source == Picture::Source::kFile || picture.source == Picture::Source::kIconOf;
}

}  // namespace

OwnedIcon LoadPicture(const Picture& picture, int pixels) {
  if (IsOfFile(picture) && CurrentPlatform().IsInsideImage(picture.name)) {
    return OwnedIcon(FromImage(picture.name, pixels));
  }
  switch (picture.source) {
    case Picture::Source::kNone:
    case Picture::Source::kBitmap:
      break;
    case Picture::Source::kResource:
      return OwnedIcon(FromResource(picture.name, pixels));
    case Picture::Source::kFile:
      return OwnedIcon(FromFile(picture.name, pixels));
    case Picture::Source::kIconOf:
      return OwnedIcon(FromInside(picture.name, picture.index));
  }
  return {};
}

HBITMAP ResourceBitmaps::Get(const Text& name) {
  auto known = bitmaps_.find(name);
  if (known == bitmaps_.end()) {
    const HANDLE bitmap =
        LoadImageW(GetModuleHandleW(nullptr), Wide(name), IMAGE_BITMAP, 0, 0, LR_CREATEDIBSECTION);
    known = bitmaps_.emplace(name, OwnedBitmap(static_cast<HBITMAP>(bitmap))).first;
  }
  return known->second.Get();
}

HICON ResourceIcons::Get(const Text& name, int pixels) {
  const auto key = std::pair(name, pixels);
  auto known = icons_.find(key);
  if (known == icons_.end()) {
    known = icons_.emplace(key, OwnedIcon(FromResource(name, pixels))).first;
  }
  return known->second.Get();
}

}  // namespace trovex::win32
