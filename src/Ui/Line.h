// What a form draws on its own ground.
#pragma once

#include "Ui/Control.h"

namespace trovex {

// A line of the form at rest: the place where an engraved line is drawn.
class Line : public Control {
 public:
  Line() : Control(ControlKind::kLine) {}

  double X1() const { return x1_; }
  double Y1() const { return y1_; }
  double X2() const { return x2_; }
  double Y2() const { return y2_; }
  void SetPoints(double x1, double y1, double x2, double y2);

 private:
  double x1_ = 0, y1_ = 0, x2_ = 0, y2_ = 0;
};

// A filled rectangle.
class Shape : public Control {
 public:
  Shape() : Control(ControlKind::kShape) {}
};

}  // namespace trovex
