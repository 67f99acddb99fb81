// The text that each control writes into the status line under the mouse.
#pragma once

#include "Screen/MainForm.h"

namespace trovex {

void BindHelpLine(MainForm& form);

}  // namespace trovex
