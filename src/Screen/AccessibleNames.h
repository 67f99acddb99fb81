// What a screen reader says.
#pragma once

#include "Screen/MainForm.h"

namespace trovex {

void NameControls(MainForm& form);

}  // namespace trovex
