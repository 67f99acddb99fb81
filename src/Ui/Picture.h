// Pictures, and the controls that show them.
#pragma once

#include "Ui/Control.h"

namespace trovex {

// A picture as a reference: the view loads and draws it. It comes from nowhere, from the program
// itself by its name (an icon, or a bitmap that fills the control), from an icon file or from
// inside a file.
struct Picture {
  enum class Source { kNone, kResource, kBitmap, kFile, kIconOf };

  Source source = Source::kNone;
  Text name;      // of the resource or the file
  int index = 0;  // of the icon inside the file
  bool operator==(const Picture&) const = default;
};

class PictureBox : public Control {
 public:
  explicit PictureBox(ControlKind kind = ControlKind::kPictureBox) : Control(kind) {}

  const Picture& GetPicture() const { return picture_; }
  void SetPicture(Picture picture);

 private:
  Picture picture_;
};

// A picture without a window of its own.
class Image : public PictureBox {
 public:
  Image() : PictureBox(ControlKind::kImage) {}
};

}  // namespace trovex
