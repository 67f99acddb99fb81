#include "Ui/OptionButton.h"

#include "Ui/Form.h"

namespace trovex {

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

}  // namespace trovex
