// From a line of a form's table to the control.
#pragma once

#include <memory>

#include "Ui/FormSpec.h"

namespace trovex {

// A control of the kind, named and placed as the table says, not yet on a form.
std::unique_ptr<Control> CreateControl(const ControlSpec& spec);

}  // namespace trovex
