// What the kinds of controls with one line of text have in common.
#pragma once

#include "Ui/Alignment.h"
#include "Ui/Control.h"
#include "Ui/Font.h"

namespace trovex {

// Shared by the kinds that show one line of text: label, button, option button, panel, frame.
class Captioned : public Control {
 public:
  using Control::Control;

  const Text& Caption() const { return caption_; }
  void SetCaption(TextView caption);
  unsigned ForeColor() const { return fore_color_; }
  void SetForeColor(unsigned colour);
  const Font& GetFont() const { return font_; }
  void SetFont(Font font) { font_ = std::move(font); }
  Alignment GetAlignment() const { return alignment_; }
  void SetAlignment(Alignment alignment) { alignment_ = alignment; }

 private:
  Text caption_;
  unsigned fore_color_ = 0;
  Font font_;
  Alignment alignment_ = Alignment::kLeft;
};

}  // namespace trovex
