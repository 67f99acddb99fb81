// Controls that show a caption and hold nothing else.
#pragma once

#include "Ui/Captioned.h"

namespace trovex {

class Label : public Captioned {
 public:
  Label() : Captioned(ControlKind::kLabel) {}
};

// Carries a text with a frame around it.
class Panel : public Captioned {
 public:
  Panel() : Captioned(ControlKind::kPanel) {}
};

// Drawn around a group of controls, with its caption in the upper edge. What it surrounds stands
// beside it on the form, not in it.
class Frame : public Captioned {
 public:
  Frame() : Captioned(ControlKind::kFrame) {}
};

}  // namespace trovex
