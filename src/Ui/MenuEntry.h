// An entry that a form adds to the menu of its window.
#pragma once

#include "Ui/Control.h"

namespace trovex {

// Lives with its form. A change is told to the view, if the form is loaded.
class MenuEntry {
 public:
  MenuEntry(Form& form, Text caption) : form_(form), caption_(std::move(caption)) {}
  MenuEntry(const MenuEntry&) = delete;
  MenuEntry& operator=(const MenuEntry&) = delete;

  // A sign behind "&" is the access key.
  const Text& Caption() const { return caption_; }
  // The check mark before the caption. Choosing the entry does not turn it: the event does.
  bool Checked() const { return checked_; }
  void SetChecked(bool checked);

  // What a user does by choosing the entry.
  void Choose() const { Raise(on_click); }
  Event on_click;

 private:
  Form& form_;
  Text caption_;
  bool checked_ = false;
};

}  // namespace trovex
