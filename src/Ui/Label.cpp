#include "Ui/Label.h"

#include "Ui/Form.h"

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

void OptionButton::SetValue(bool value) {
  if (value == value_) return;
  if (value && Parent() != nullptr) {
    for (const auto& other : Parent()->Controls()) {
      if (other.get() != this && other->Kind() == Kind() && other->Name() == Name()) {
        static_cast<OptionButton&>(*other).SetValue(false);
      }
    }
  }
  value_ = value;
  Notify(Property::kSelection);
  if (value) Raise(on_click);
}

void Line::SetPoints(double x1, double y1, double x2, double y2) {
  x1_ = x1;
  y1_ = y1;
  x2_ = x2;
  y2_ = y2;
  Notify(Property::kPlace);
}

}  // namespace trovex
