#include "Ui/CheckBox.h"

namespace trovex {

void CheckBox::SetValue(bool value) {
  if (value == value_) return;
  value_ = value;
  Notify(Property::kSelection);
  Raise(on_click);
}

}  // namespace trovex
