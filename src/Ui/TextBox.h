// A text field of one or many lines.
#pragma once

#include "Ui/Control.h"

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
  void SetMultiLine(bool multi_line) { Set(multi_line_, multi_line, Property::kDesign); }
  bool Locked() const { return locked_; }
  void SetLocked(bool locked) { Set(locked_, locked, Property::kDesign); }

  Event on_change;
  Event on_enter;       // the Enter key, which is used up
  Event on_lost_focus;  // the input focus goes elsewhere

 private:
  Text text_;
  bool multi_line_ = false;
  bool locked_ = false;
};

}  // namespace trovex
