#include "Ui/ScrollBar.h"

#include <algorithm>

namespace trovex {

void ScrollBar::SetRange(int min, int max) {
  min_ = min;
  max_ = std::max(min, max);
  Notify(Property::kOther);
  SetValue(value_);
}

void ScrollBar::SetValue(int value) {
  value = std::clamp(value, min_, max_);
  if (value == value_) return;
  value_ = value;
  Notify(Property::kSelection);
  Raise(on_change);
}

void ScrollBar::Drag(int value) {
  SetValue(value);
  Raise(on_scroll);
}

}  // namespace trovex
