// A horizontal scroll bar.
#pragma once

#include "Ui/Control.h"

namespace trovex {

class ScrollBar : public Control {
 public:
  ScrollBar() : Control(ControlKind::kScrollBar) {}

  int Min() const { return min_; }
  int Max() const { return max_; }
  void SetRange(int min, int max);
  int Value() const { return value_; }
  // A value outside the range is brought to its nearer end. A new one raises the change event.
  void SetValue(int value);
  // The thumb is on its way to a value: the scroll event besides.
  void Drag(int value);

  Event on_change;
  Event on_scroll;

 private:
  int min_ = 0, max_ = 32767, value_ = 0;
};

}  // namespace trovex
