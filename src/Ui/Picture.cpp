#include "Ui/Picture.h"

namespace trovex {

void PictureBox::SetPicture(Picture picture) {
  if (picture == picture_) return;
  picture_ = std::move(picture);
  Notify(Property::kPicture);
}

}  // namespace trovex
