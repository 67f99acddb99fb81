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
  Preset(value);
  if (value) Raise(on_click);
}

void OptionButton::Preset(bool value) {
  if (value == value_) return;
  if (value) ReleaseOthers();
  value_ = value;
  Notify(Property::kSelection);
}

void OptionButton::ReleaseOthers() {
  if (Parent() == nullptr) return;
  for (const auto& other : Parent()->Controls()) {
    const bool same_group = other->Kind() == Kind() && other->Name() == Name();
    if (other.get() != this && same_group) static_cast<OptionButton&>(*other).Preset(false);
  }
}

void Line::SetPoints(double x1, double y1, double x2, double y2) {
  x1_ = x1;
  y1_ = y1;
  x2_ = x2;
  y2_ = y2;
  Notify(Property::kPlace);
}

}  // namespace trovex
