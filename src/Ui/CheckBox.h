// A box that is on or off.
#pragma once

#include "Ui/Captioned.h"

namespace trovex {

class CheckBox : public Captioned {
 public:
  CheckBox() : Captioned(ControlKind::kCheckBox) {}

  bool Value() const { return value_; }
  // A new state raises the click.
  void SetValue(bool value);
  // The state of the design, without the click.
  void Preset(bool value) { Set(value_, value, Property::kSelection); }

 private:
  bool value_ = false;
};

}  // namespace trovex
