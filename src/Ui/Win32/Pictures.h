// Icons and bitmaps from the program's resources, icons from icon files and from inside other
// files.
#pragma once

#include <map>
#include <tuple>

#include "Ui/Picture.h"
#include "Ui/Win32/Scale.h"

namespace trovex::win32 {

// An icon that its holder destroys.
class OwnedIcon {
 public:
  OwnedIcon() = default;
  explicit OwnedIcon(HICON icon) : icon_(icon) {}
  OwnedIcon(OwnedIcon&& other) noexcept : icon_(other.icon_) { other.icon_ = nullptr; }
  OwnedIcon& operator=(OwnedIcon&& other) noexcept {
    std::swap(icon_, other.icon_);
    return *this;
  }
  ~OwnedIcon() {
    if (icon_ != nullptr) DestroyIcon(icon_);
  }
  HICON Get() const { return icon_; }

 private:
  HICON icon_ = nullptr;
};

// The icon at so many pixels; an empty one where the picture is none or cannot be read.
OwnedIcon LoadPicture(const Picture& picture, int pixels);

// A bitmap that its holder deletes.
class OwnedBitmap {
 public:
  OwnedBitmap() = default;
  explicit OwnedBitmap(HBITMAP bitmap) : bitmap_(bitmap) {}
  OwnedBitmap(OwnedBitmap&& other) noexcept : bitmap_(other.bitmap_) { other.bitmap_ = nullptr; }
  OwnedBitmap& operator=(OwnedBitmap&& other) noexcept {
    std::swap(bitmap_, other.bitmap_);
    return *this;
  }
  ~OwnedBitmap() {
    if (bitmap_ != nullptr) DeleteObject(bitmap_);
  }
  HBITMAP Get() const { return bitmap_; }

 private:
  HBITMAP bitmap_ = nullptr;
};

// The program's own bitmaps at the size of their drawing, kept; null where there is none.
class ResourceBitmaps {
 public:
  HBITMAP Get(const Text& name);

 private:
  std::map<Text, OwnedBitmap> bitmaps_;
};

// The program's own pictures, kept.
class ResourceIcons {
 public:
  HICON Get(const Text& name, int pixels);

 private:
  std::map<std::pair<Text, int>, OwnedIcon> icons_;
};

}  // namespace trovex::win32
