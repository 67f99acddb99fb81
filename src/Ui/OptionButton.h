// A choice of one among several.
#pragma once

#include "Ui/Captioned.h"

namespace trovex {

// One of a group: choosing one releases the others of its control array.
class OptionButton : public Captioned {
 public:
  OptionButton() : Captioned(ControlKind::kOptionButton) {}

  bool Value() const { return value_; }
  // Setting it on raises the click.
  void SetValue(bool value);
  // The same without the click, for a choice made before the user sees it.
  void Preset(bool value);

 private:
  void ReleaseOthers();

  bool value_ = false;
};

}  // namespace trovex
