// Icons from the program's resources, from icon files and from inside other files.
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

// The picture at so many pixels; an empty icon where it is none or cannot be read.
OwnedIcon LoadPicture(const Picture& picture, int pixels);

// The program's own pictures, kept.
class ResourceIcons {
 public:
  HICON Get(const Text& name, int pixels);

 private:
  std::map<std::pair<Text, int>, OwnedIcon> icons_;
};

}  // namespace trovex::win32
