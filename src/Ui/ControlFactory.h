// From a row of a form's table to the control.
#pragma once

#include <memory>

#include "Ui/FormSpec.h"

namespace trovex {

// Where the texts of a table's numbers come from.
class Words {
 public:
  explicit Words(const FormSpec& form) : texts_(form.texts) {}
  // Empty where the number stands for none.
  Text operator()(StringId id) const;

 private:
  const Text& (*texts_)(StringId);
};

// A control as the row says, not yet on a form.
std::unique_ptr<Control> CreateControl(const ControlSpec& spec, const Words& words);

}  // namespace trovex
