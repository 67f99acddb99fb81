#include "Ui/Line.h"

namespace trovex {

void Line::SetPoints(double x1, double y1, double x2, double y2) {
  x1_ = x1;
  y1_ = y1;
  x2_ = x2;
  y2_ = y2;
  Notify(Property::kPlace);
}

}  // namespace trovex
