// What the kinds of controls with one line of text have in common.
#pragma once

#include "Ui/Control.h"

namespace trovex {

// Shared by the kinds that show one line of text: label, button, option button, panel, frame.
class Captioned : public Control {
 public:
  using Control::Control;

  const Text& Caption() const { return caption_; }
  void SetCaption(TextView caption) { Set(caption_, Text(caption), Property::kText); }

 private:
  Text caption_;
};

}  // namespace trovex
