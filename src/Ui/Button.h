// A command button.
#pragma once

#include "Ui/Captioned.h"

namespace trovex {

// A command button, with a picture over its caption where the form names one.
class Button : public Captioned {
 public:
  Button() : Captioned(ControlKind::kButton) {}

  const Text& Picture() const { return picture_; }
  void SetPicture(Text name) { Set(picture_, std::move(name), Property::kDesign); }
  // What a click of the user's does.
  void Press() { Raise(on_click); }

 private:
  Text picture_;
};

}  // namespace trovex
