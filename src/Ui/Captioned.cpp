#include "Ui/Captioned.h"

namespace trovex {

void Captioned::SetCaption(TextView caption) {
  if (caption == caption_) return;
  caption_ = caption;
  Notify(Property::kText);
}

void Captioned::SetForeColor(unsigned colour) {
  if (colour == fore_color_) return;
  fore_color_ = colour;
  Notify(Property::kColour);
}

}  // namespace trovex
