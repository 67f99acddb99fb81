// A text field of one or many lines.
#pragma once

#include "Ui/Alignment.h"
#include "Ui/Control.h"
#include "Ui/Font.h"

namespace trovex {

class TextBox : public Control {
 public:
  TextBox() : Control(ControlKind::kTextBox) {}

  const Text& GetText() const { return text_; }
  // Raises the change event if the text differs.
  void SetText(TextView text);
  // Appends to the text; the cost is that of what is appended.
  void Append(TextView text);

  bool MultiLine() const { return multi_line_; }
  void SetMultiLine(bool multi_line) { multi_line_ = multi_line; }
  bool Locked() const { return locked_; }
  void SetLocked(bool locked) { locked_ = locked; }
  unsigned ForeColor() const { return fore_color_; }
  void SetForeColor(unsigned colour) { fore_color_ = colour; }
  const Font& GetFont() const { return font_; }
  void SetFont(Font font) { font_ = std::move(font); }
  Alignment GetAlignment() const { return alignment_; }
  void SetAlignment(Alignment alignment) { alignment_ = alignment; }

  Event on_change;
  Event on_enter;       // the Enter key, which is used up
  Event on_lost_focus;  // the input focus goes elsewhere

 private:
  Text text_;
  bool multi_line_ = false;
  bool locked_ = false;
  unsigned fore_color_ = 0;
  Font font_;
  Alignment alignment_ = Alignment::kLeft;
};

}  // namespace trovex
