#include "Ui/TextBox.h"

namespace trovex {

void TextBox::SetText(TextView text) {
  if (text == text_) return;
  text_ = text;
  Notify(Property::kText);
  Raise(on_change);
}

void TextBox::Append(TextView text) {
  if (text.empty()) return;
  text_ += text;
  Notify(Property::kText);
  Raise(on_change);
}

}  // namespace trovex
